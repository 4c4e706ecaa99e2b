// What characters are besides how they look: dots below hidden ones, and a bar at the margin beside
// those that a tracked change inserted.
#pragma once

#include "window/text/position_map.h"

class QPainter;
class QTextBlock;

namespace quill {

void DrawRunLines(QPainter& painter, const QTextBlock& paragraph, const Document& document,
                  const PositionMap& positions);

}  // namespace quill
