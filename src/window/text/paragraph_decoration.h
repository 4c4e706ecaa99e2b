// What is drawn around paragraphs without being text of theirs: the labels of lists in front of
// them, the ends of pages below them, the ticks of notes, and what their author put around them.
#pragma once

#include <QString>
#include <QTextBlockFormat>
#include <unordered_map>

#include "window/text/paragraph_frames.h"
#include "window/text/position_map.h"
#include "window/text/text_notes.h"

class QPainter;
class QRect;
class QTextBlock;
class QTextLine;

namespace quill {

// The style of the paragraph that begins at a place of the text. In a table it is that of a
// paragraph which the rows of the page lay out.
QTextBlockFormat StyleWithRoom(QTextBlockFormat style, const Document& document,
                               Position paragraph);
// With room for the label, if it has one, of the paragraph that begins there.
QTextBlockFormat WithLabelRoom(QTextBlockFormat style, const Document& document,
                               Position paragraph);

class ParagraphDecoration {
 public:
  // Both must outlive the decoration.
  ParagraphDecoration(const Document& document, const PositionMap& positions);

  const TextNotes& Notes() const { return notes_; }
  // Forgets the labels and notes of the text before.
  void Clear();
  // Draw what belongs to the paragraphs of a stretch of the widget's text: what is behind the text,
  // before that is painted, and what is over it.
  void DrawBehind(QPainter& painter, const QTextBlock& first, int bottom);
  void Draw(QPainter& painter, const QTextBlock& first, int bottom);

 private:
  // The label of what begins with a line, in that style.
  void DrawLabel(QPainter& painter, const QTextBlock& block, const QTextLine& line,
                 const QTextBlockFormat& style);
  void DrawLabels(QPainter& painter, const QTextBlock& block);
  void DrawPageEnd(QPainter& painter, const QTextBlock& block) const;
  QString LabelAt(int place);
  // The colour in which the file has a paragraph's beginning.
  Colour InkOf(const QTextBlock& block) const;

  const Document& document_;
  const PositionMap& positions_;
  TextNotes notes_;
  ParagraphFrames frames_;
  std::unordered_map<Offset, QString> labels_;  // by where the paragraph's first character stands
};

}  // namespace quill
