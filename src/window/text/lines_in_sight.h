// The lines of a paragraph that are to be painted: a paragraph may have very many others.
#pragma once

#include <QRectF>
#include <QTextLayout>

namespace quill {

// Calls `draw` with each line that reaches into a part of the page, and with its place there.
template <class Draw>
void ForLinesIn(const QRectF& part, const QTextLayout& paragraph, Draw draw) {
  for (int i = 0; i < paragraph.lineCount(); ++i) {
    const QTextLine line = paragraph.lineAt(i);
    const QRectF place = line.rect().translated(paragraph.position());
    if (place.top() > part.bottom()) break;
    if (place.bottom() >= part.top()) draw(line, place);
  }
}

}  // namespace quill
