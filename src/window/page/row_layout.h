// Rows of tables by the toolkit's means. A row may be several paragraphs, those of its cells: they
// share a place on the page, and each one's lines stand where its cells do.
#pragma once

#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextBlockUserData>
#include <functional>
#include <memory>
#include <vector>

#include "window/page/paragraph.h"
#include "window/page/table_row.h"

class QPainter;

namespace quill {

// Marks the style of a paragraph in a table.
void SetInTable(QTextBlockFormat& style);
bool IsInTable(const QTextBlockFormat& style);

// What a paragraph holds of one cell.
struct CellPart {
  int end = 0;  // behind its last character, counted from the paragraph's first one
  std::size_t column = 0;
  bool endsCell = false;   // its last character is the cell's end, which is a tab
  bool hasRoom = true;     // an empty cell that is merged with the one before has none
  QTextBlockFormat style;  // margins, indent and alignment in its column
};

struct TableRow {
  QTextBlock first;
  RowPlan plan;                                   // with columns for all parts
  std::vector<std::vector<CellPart>> paragraphs;  // each with one part at least
};

// Tells of the row that holds a paragraph of a table.
using TellRow = std::function<TableRow(const QTextBlock& paragraph)>;

struct RowOnPage {
  int paragraphs = 0;
  int height = 0;
  std::vector<ColumnPlace> columns;
  std::vector<CellLook> looks;  // of the columns
  std::vector<CellTextLine> lines;
};

// What a paragraph that is laid out in a row carries.
class InRow final : public QTextBlockUserData {
 public:
  InRow(std::shared_ptr<const RowOnPage> row, int number, std::vector<CellPart> parts)
      : row(std::move(row)), number(number), parts(std::move(parts)) {}

  // The part that holds a place in the paragraph.
  const CellPart& PartAt(int place) const;

  const std::shared_ptr<const RowOnPage> row;
  const int number;  // among the row's paragraphs
  // Their ends count an input method's text.
  const std::vector<CellPart> parts;
};
// nullptr where it is not laid out in a row.
const InRow* RowOf(const QTextBlock& paragraph);
// Forgets that.
void LeaveRow(QTextBlock& paragraph);
QTextBlock FirstOfRow(const QTextBlock& paragraph);

// Breaks all paragraphs of a row into lines. Returns its height.
int BreakRow(const TableRow& row, const Page& page);

// How wide what stands at a place of a paragraph may be.
double RoomAt(const QTextBlock& paragraph, int place, const Page& page);

// Paint what lies under the text of a row, whose top left corner is given, and its lines. A row
// below it, or none, says where the two share a cell.
void PaintShading(QPainter& painter, const RowOnPage& row, QPointF place);
void PaintBorders(QPainter& painter, const RowOnPage& row, const RowOnPage* below, QPointF place,
                  double scale);

}  // namespace quill
