// Buttons, drawn flat, in their own colour if they have one, with captions that wrap.
#include "window/controls/binders.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include "window/shared/appearance.h"
#include "window/shared/shown.h"
#include "window/shared/widget_binder.h"

namespace quill {
namespace {

QColor Mixed(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](float x, float y) {
    return static_cast<float>(x * share + y * (1 - share));
  };
  return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                          mix(a.blueF(), b.blueF()));
}

class CaptionButton : public QPushButton {
 public:
  CaptionButton(QWidget& parent, const QColor& face, bool coloured)
      : QPushButton(&parent), face_(face), coloured_(coloured) {
    setAttribute(Qt::WA_Hover);
    // The Enter key presses the button that has the focus.
    setAutoDefault(true);
  }

 protected:
  // In the toolkit, arrow keys move from button to button.
  void keyPressEvent(QKeyEvent* event) override {
    const int key = event->key();
    const bool arrow =
        key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
    if (arrow) return event->ignore();
    QPushButton::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFace(painter);
    const QString caption = text().simplified();
    QFont captionFont = font();
    captionFont.setBold(coloured_);
    const Caption laid = LayCaption(captionFont, caption, rect());
    painter.setFont(laid.font);
    painter.setPen(CaptionColour());
    painter.drawText(laid.room, Qt::AlignCenter | Qt::TextWordWrap, caption);
  }

 private:
  void PaintFace(QPainter& painter) const {
    constexpr double kRadius = 3.5;
    const QRectF edge = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Mixed(Qt::black, Face(), isEnabled() ? 0.35 : 0.14));
    painter.setBrush(Face());
    painter.drawRoundedRect(edge, kRadius, kRadius);
    if (!hasFocus()) return;
    painter.setPen(QPen(Mixed(palette().color(QPalette::Highlight), Qt::black, 0.8), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(edge.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    // Without it the ring would not show on a face of the same colour or on red.
    painter.setPen(Qt::white);
    painter.drawRoundedRect(edge.adjusted(2, 2, -2, -2), kRadius - 1, kRadius - 1);
  }

  QColor Face() const {
    if (!isEnabled()) return Mixed(face_, palette().color(QPalette::Window), 0.25);
    if (isDown()) return Mixed(Qt::black, face_, 0.18);
    return underMouse() ? Mixed(Qt::white, face_, coloured_ ? 0.15 : 0.75) : face_;
  }

  QColor CaptionColour() const {
    return isEnabled() ? TextOn(face_) : palette().color(QPalette::Disabled, QPalette::ButtonText);
  }

  QColor face_;
  bool coloured_;
};

CaptionButton* NewButton(const CatalogueRow& row, QWidget& parent) {
  const bool coloured = row.stored.showsBackColor;
  const QColor face =
      coloured ? ToQColor(row.stored.backColor) : parent.palette().color(QPalette::Button);
  return new CaptionButton(parent, face, coloured);
}

class ButtonBinder final : public WidgetBinder {
 public:
  ButtonBinder(CommandButton& button, QWidget& container, Actions& actions);

 private:
  ButtonBinder(CommandButton& button, QPushButton& widget, Actions& actions);
};

ButtonBinder::ButtonBinder(CommandButton& button, QWidget& container, Actions& actions)
    : ButtonBinder(button, *NewButton(button.Row(), container), actions) {}

ButtonBinder::ButtonBinder(CommandButton& button, QPushButton& widget, Actions& actions)
    : WidgetBinder(button, widget, actions) {
  widget.setText(ToQt(button.Row().text));
  QObject::connect(&widget, &QPushButton::clicked, &widget,
                   [this, &button] { TheActions().Click(button); });
}

}  // namespace

std::unique_ptr<Binder> BindButton(CommandButton& button, QWidget& container, Actions& actions) {
  return std::make_unique<ButtonBinder>(button, container, actions);
}

}  // namespace quill
