// Frames, which group controls and cover whatever is behind them, and labels.
#include "window/controls/binders.h"

#include <QAccessibleWidget>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "window/shared/appearance.h"
#include "window/shared/edges.h"
#include "window/shared/shown.h"
#include "window/shared/widget_binder.h"

namespace quill {
namespace {

// A group box with its caption inside the border: opaque to its edges, so that a frame in front
// hides the one behind.
class Panel : public QGroupBox {
 public:
  Panel(QWidget& parent, const QColor& background, const QColor& text)
      : QGroupBox(&parent), background_(background), text_(text) {
    // Its contents take its colour; boxes keep theirs.
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    setPalette(colours);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), background_);
    DrawEdge(painter, rect(), background_.darker(118));
    const QString text = title().simplified();
    const Caption laid = LayTitle(font(), text, rect());
    painter.setPen(isEnabled() ? text_ : palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setFont(laid.font);
    painter.drawText(laid.room, Qt::AlignLeft | Qt::AlignVCenter, text);
  }

 private:
  QColor background_;
  QColor text_;
};

// To the toolkit, a panel behind another one is visible. A panel that is wholly covered must not be
// announced.
class SpokenPanel final : public QAccessibleWidget {
 public:
  explicit SpokenPanel(QWidget& panel) : QAccessibleWidget(&panel, QAccessible::Grouping) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    if (IsCovered()) state.invisible = 1;
    return state;
  }
  int childCount() const override { return IsCovered() ? 0 : QAccessibleWidget::childCount(); }

 private:
  bool IsCovered() const {
    const QList<QWidget*> inside = widget()->findChildren<QWidget*>();
    return widget()->isVisible() &&
           std::none_of(inside.begin(), inside.end(),
                        [](const QWidget* child) { return child->isVisible() && IsSeen(*child); });
  }
  static bool IsSeen(const QWidget& child) {
    const QWidget& window = *child.window();
    const QPoint middle = child.mapTo(&window, child.rect().center());
    const QWidget* const seen = window.childAt(middle);
    return seen == &child || child.isAncestorOf(seen);
  }
};

QAccessibleInterface* Speak(const QString& /*className*/, QObject* object) {
  auto* const panel = dynamic_cast<Panel*>(object);
  return panel != nullptr ? new SpokenPanel(*panel) : nullptr;
}

QGroupBox* NewPanel(const CatalogueRow& row, QWidget& container) {
  return new Panel(container, BackgroundOf(row), ToQColor(row.stored.foreColor));
}

class FrameBinder final : public WidgetBinder {
 public:
  FrameBinder(Frame& frame, QWidget& container, Actions& actions);

 private:
  FrameBinder(Frame& frame, QGroupBox& box, Actions& actions);
};

class LabelBinder final : public WidgetBinder {
 public:
  LabelBinder(Label& label, QWidget& container, Actions& actions);

 private:
  LabelBinder(Label& label, QLabel& widget, Actions& actions);
};

FrameBinder::FrameBinder(Frame& frame, QWidget& container, Actions& actions)
    : FrameBinder(frame, *NewPanel(frame.Row(), container), actions) {}

FrameBinder::FrameBinder(Frame& frame, QGroupBox& box, Actions& actions)
    : WidgetBinder(frame, box, actions) {
  box.setTitle(ToQt(frame.Row().text));
  QAccessible::installFactory(Speak);
}

LabelBinder::LabelBinder(Label& label, QWidget& container, Actions& actions)
    : LabelBinder(label, *new QLabel(&container), actions) {}

LabelBinder::LabelBinder(Label& label, QLabel& widget, Actions& actions)
    : WidgetBinder(label, widget, actions) {
  const QString text = ToQt(label.Row().text);
  widget.setTextFormat(Qt::PlainText);
  widget.setWordWrap(true);
  widget.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  widget.setText(text);
  widget.setFont(FittingFont(widget.font(), text, widget.size()));
}

}  // namespace

std::unique_ptr<Binder> BindFrame(Frame& frame, QWidget& container, Actions& actions) {
  return std::make_unique<FrameBinder>(frame, container, actions);
}

std::unique_ptr<Binder> BindLabel(Label& label, QWidget& container, Actions& actions) {
  return std::make_unique<LabelBinder>(label, container, actions);
}

}  // namespace quill
