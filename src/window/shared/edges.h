// The edges of boxes and panels, as thin as can be seen and complete at every scale. At 125 and 150
// %, a line of one pixel stroked by the toolkit vanishes if it starts between two points of the
// screen.
#pragma once

#include <QProxyStyle>

namespace quill {

// One pixel wide (at 100 %), inside the rectangle.
void DrawEdge(QPainter& painter, const QRect& rect, const QColor& colour);

// The application's style, with the frames of boxes that scroll drawn by `DrawEdge`.
class EdgeStyle final : public QProxyStyle {
 public:
  EdgeStyle();
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace quill
