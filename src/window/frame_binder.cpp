#include "window/frame_binder.h"

#include <QGroupBox>
#include <QLabel>
#include <QPainter>

#include "window/appearance.h"
#include "window/shown.h"

namespace quill {
namespace {

// A group box with its caption inside the border: opaque to its edges, so that a frame in front
// hides the one behind.
class Panel : public QGroupBox {
 public:
  Panel(QWidget& parent, const QColor& background, const QColor& text)
      : QGroupBox(&parent), background_(background), text_(text) {
    // What it contains takes up its colour; boxes keep their own.
    QPalette colours = palette();
    colours.setColor(QPalette::Window, background);
    setPalette(colours);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.fillRect(rect(), background_);
    painter.setPen(background_.darker(118));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    QFont caption = font();
    caption.setBold(true);
    painter.setPen(isEnabled() ? text_ : palette().color(QPalette::Disabled, QPalette::WindowText));
    const QRect room(8, 1, width() - 16, kCaptionHeight);
    painter.setFont(FittingFont(caption, title().simplified(), room.size()));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter, title().simplified());
  }

 private:
  static constexpr int kCaptionHeight = 15;

  QColor background_;
  QColor text_;
};

QGroupBox* NewPanel(const CatalogueRow& row, QWidget& container) {
  return new Panel(container, BackgroundOf(row), ToQColor(row.stored.foreColor));
}

}  // namespace

FrameBinder::FrameBinder(Frame& frame, QWidget& container, Actions& actions)
    : FrameBinder(frame, *NewPanel(frame.Row(), container), actions) {}

FrameBinder::FrameBinder(Frame& frame, QGroupBox& box, Actions& actions)
    : WidgetBinder(frame, box, actions) {
  box.setTitle(ToQt(frame.Row().text));
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

}  // namespace quill
