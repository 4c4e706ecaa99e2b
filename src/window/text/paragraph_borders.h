// The shading behind paragraphs and the borders around them.
#pragma once

#include "text/paragraph_frame.h"

class QColor;
class QPainter;
class QTextBlock;

namespace quill {

class ParagraphFrames;

// What a border takes of the room beside a paragraph, in pixels of 1/96 inch.
double RoomOf(const Border& border);

// A shading that lets dark text and the marks be read on it.
QColor ReadableShading(const QColor& shading);

// To be painted before the text. `ink` is the colour in which the file has the paragraph.
void DrawFrame(QPainter& painter, const QTextBlock& paragraph, ParagraphFrames& frames, Colour ink);

}  // namespace quill
