// The rows of a text's tables for the page: which paragraphs a row holds, what of them is in which
// cell, and how the file wants them drawn.
#pragma once

#include <QTextBlock>
#include <cstddef>
#include <optional>
#include <vector>

#include "rtf/table.h"
#include "window/page/row_layout.h"
#include "window/text/position_map.h"

namespace quill {

class TableRows {
 public:
  // Both must outlive the rows.
  TableRows(const Document& document, const PositionMap& positions);

  // Forgets the text before.
  void Clear() { definitions_.reset(); }
  // The row that holds a paragraph of a table. In a table inside a cell, and in a row of too many
  // paragraphs, each paragraph is a row by itself.
  TableRow Tell(const QTextBlock& paragraph);

 private:
  // Paragraphs that make a row, or one of them.
  struct Paragraphs {
    QTextBlock first;
    QTextBlock last;
    std::size_t cellsBefore = 0;  // in the row, in front of the first of them
  };
  Paragraphs ParagraphsOf(const QTextBlock& paragraph) const;
  // Their columns are the numbers of their cells, the first one given.
  std::vector<CellPart> PartsOf(const QTextBlock& paragraph, std::size_t cell) const;
  bool EndsRow(const QTextBlock& paragraph) const;
  // What the character at a place was in the file.
  Origin::Kind KindAt(int place) const;
  // Behind the ends of cells, counted from the paragraph's first character.
  std::vector<int> CellEndsIn(const QTextBlock& paragraph) const;
  bool HoldsNestedCells(const Paragraphs& row) const;
  bool HoldsNestedCell(const QTextBlock& paragraph) const;
  // The style of what stands in a cell between two places.
  QTextBlockFormat StyleOf(int begin, int end) const;
  // The definition of the row to which a place belongs; an empty one where the file has none.
  rtf::RowDefinition DefinitionBefore(int place);

  const Document& document_;
  const PositionMap& positions_;
  std::optional<std::vector<Offset>> definitions_;  // where they stand, once it was asked for
};

}  // namespace quill
