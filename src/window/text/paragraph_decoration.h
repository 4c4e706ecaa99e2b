// What is drawn around paragraphs without being text: labels of lists in front of them, and lines
// between the rows and cells of tables. Columns of a table are tab stops.
#pragma once

#include <QString>
#include <QTextBlockFormat>
#include <unordered_map>

#include "window/text/position_map.h"

class QPainter;
class QRect;
class QTextBlock;
class QTextDocument;

namespace quill {

// The style of a paragraph, told by its first character, with room for what is drawn around it.
// `before` is that of the paragraph before.
QTextBlockFormat WithRoom(QTextBlockFormat style, const Document& document, Position paragraph,
                          const QTextBlockFormat& before);
// Marks the style of a paragraph in a table.
void SetInTable(QTextBlockFormat& style);

class ParagraphDecoration {
 public:
  // Both must outlive the decoration.
  ParagraphDecoration(const Document& document, const PositionMap& positions);

  // Forgets the labels of the text before.
  void Clear() { labels_.clear(); }
  // Draws what belongs to the paragraphs of a stretch of the widget's text.
  void Draw(QPainter& painter, const QTextBlock& first, int bottom);

 private:
  void DrawLabel(QPainter& painter, const QTextBlock& block);
  void DrawRow(QPainter& painter, const QTextBlock& block) const;
  void DrawCellEnds(QPainter& painter, const QTextBlock& block) const;
  bool EndsRow(const QTextBlock& block) const;
  // What the character at a place of the widget's text was in the file.
  bool Is(Origin::Kind kind, int place) const;
  QString LabelOf(const QTextBlock& block);

  const Document& document_;
  const PositionMap& positions_;
  std::unordered_map<Offset, QString> labels_;  // by where the paragraph's first character stands
};

}  // namespace quill
