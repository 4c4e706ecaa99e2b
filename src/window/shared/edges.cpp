#include "window/shared/edges.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace quill {

void DrawEdge(QPainter& painter, const QRect& rect, const QColor& colour) {
  // A filled area always covers at least one point of the screen.
  painter.fillRect(QRectF(rect.left(), rect.top(), rect.width(), 1), colour);
  painter.fillRect(QRectF(rect.left(), rect.bottom(), rect.width(), 1), colour);
  painter.fillRect(QRectF(rect.left(), rect.top(), 1, rect.height()), colour);
  painter.fillRect(QRectF(rect.right(), rect.top(), 1, rect.height()), colour);
}

EdgeStyle::EdgeStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void EdgeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  if (element != PE_Frame) {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    return;
  }
  DrawEdge(*painter, option->rect, option->palette.color(QPalette::Window).darker(130));
}

}  // namespace quill
