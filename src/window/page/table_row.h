// A row of a table on the page: from where to where its columns go, and where the lines of its
// cells stand. Plain numbers; row_layout.h makes lines of the toolkit's of them.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "text/format.h"

namespace quill {

// In pixels of 1/96 inch. Without a width there is no line.
struct CellLine {
  double width = 0;
  Colour colour = 0;
};

struct CellLook {
  CellLine top;
  CellLine left;
  CellLine bottom;
  CellLine right;
  std::optional<Colour> shading;
  bool joinsAbove = false;  // one cell with the one above
};

// What a file says of a row, in pixels of 1/96 inch from the left edge of the text.
struct RowPlan {
  struct Column {
    double right = 0;
    CellLook look;
  };

  double left = 0;
  std::vector<Column> columns;  // in the order of reading
  Alignment alignment = Alignment::kLeft;
  bool rightToLeft = false;  // the first column is the rightmost
};

// In pixels from the left edge of the page's lines, whole ones.
struct ColumnPlace {
  double left = 0;
  double right = 0;
  double gap = 0;  // between its edges and its text

  double TextLeft() const { return left + gap; }
  double TextWidth() const { return right - left - 2 * gap; }
  bool operator==(const ColumnPlace&) const = default;
};

// The columns of a row on a page whose lines are so wide: never wider together than those.
std::vector<ColumnPlace> PlaceColumns(const RowPlan& plan, double width, double scale);

// Puts what the cells of a row hold below each other, in each column by itself.
class CellFlow {
 public:
  CellFlow(std::size_t columns, int padding)
      : padding_(padding), columns_(columns, {padding, 0, false}) {}

  // A paragraph begins in a column, with so much space above it and below; none at the cell's
  // edges.
  void Begin(std::size_t column, int above, int below);
  // Takes so many pixels of a column and returns where they begin.
  int Take(std::size_t column, int height);
  int Height() const;

 private:
  struct Column {
    int bottom = 0;
    int space = 0;  // below it, if anything follows
    bool begun = false;
  };
  int padding_;
  std::vector<Column> columns_;
};

// A line of text in a row.
struct CellTextLine {
  int paragraph = 0;  // of the row's, from 0
  int line = 0;       // of that paragraph's
  std::size_t column = 0;
  double top = 0;
};

// The line that a point is nearest to: in the column that holds it the last one that begins above
// it, else the first. `lines`, of which there must be one, are in the order of the text.
std::size_t LineNear(const std::vector<CellTextLine>& lines,
                     const std::vector<ColumnPlace>& columns, double x, double y);

// The next line of the same column below a paragraph's line, or above; none where the row ends.
std::optional<std::size_t> NextInColumn(const std::vector<CellTextLine>& lines, int paragraph,
                                        int line, bool below);

}  // namespace quill
