// The dots and lines that lead from the text in front of a tab to what stands behind it.
#pragma once

#include <vector>

#include "text/paragraph_frame.h"

class QPainter;
class QTextBlock;

namespace quill {

void DrawTabLeaders(QPainter& painter, const QTextBlock& paragraph,
                    const std::vector<TabStop>& stops);

}  // namespace quill
