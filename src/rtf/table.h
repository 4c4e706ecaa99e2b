// The rows of tables, as their files define them. Read from the kept bytes when it is asked for;
// the document keeps none of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::rtf {

// A line at a side of a cell.
struct Border {
  enum Kind : std::uint8_t { kUntold, kNone, kLine };

  Kind kind = kUntold;
  Twips width = 0;  // 0 where the file does not tell
  Colour colour = 0;

  bool operator==(const Border&) const = default;
};

struct Borders {
  Border top;
  Border left;
  Border bottom;
  Border right;
};

struct RowDefinition {
  struct Cell {
    Twips edge = 0;  // its right one, counted from the text's left margin
    Borders borders;
    std::optional<Colour> shading;
    bool joinsBefore = false;  // merged with the cell before it
    bool joinsAbove = false;   // merged with the one above
  };

  Twips left = 0;  // of the first cell
  bool rightToLeft = false;
  Alignment alignment = Alignment::kLeft;  // of the whole row on the page
  // At most 64. Where the file tells of any border in the row, none is left untold; where it tells
  // of none, all are.
  std::vector<Cell> cells;
};

// Where the definitions of rows stand in a file, in order. One pass over the bytes.
std::vector<Offset> FindRowDefinitions(std::string_view bytes);

// The definition that begins at one of those places.
RowDefinition RowDefinitionAt(const Source& source, Offset place);

}  // namespace quill::rtf
