// The window as it is stored: every control with its kind, container, place and first values.
//
// No handler changes a place, font or tool tip, so these are read from here once. Places are in
// twips (1/1440 inch; 15 to a pixel at 96 dots an inch), relative to the container's top left
// corner.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "text/format.h"

namespace quill {

enum class Kind : std::uint8_t {
  kForm,
  kTextBox,
  kComboBox,
  kListBox,
  kButton,
  kFrame,
  kLabel,
  kMenuItem,
  kRichText,
  kFileDialog,
};

// A colour of the window system's palette; the highest bit says so.
constexpr Colour SystemColour(unsigned number) { return 0x80000000U | number; }
constexpr bool IsSystemColour(Colour colour) { return (colour & 0x80000000U) != 0; }

inline constexpr Colour kMenuBarColour = SystemColour(4);
inline constexpr Colour kWindowBackground = SystemColour(5);
inline constexpr Colour kWindowText = SystemColour(8);
inline constexpr Colour kActiveBorder = SystemColour(10);
inline constexpr Colour kInactiveBorder = SystemColour(11);
inline constexpr Colour kLightEdge = SystemColour(22);
inline constexpr Colour kToolTipBackground = SystemColour(24);

struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// How a place changes when the window is larger or smaller than stored.
enum class ByWindow : std::uint8_t {
  kStays,
  kGrows,       // grows with the window in both directions
  kKeepsRight,  // stays at the right edge and grows with the window's height
  kMovesDown,
};

// Stored properties other than caption and place, with the defaults for those that a row omits.
struct Stored {
  bool enabled = true;
  bool visible = true;
  Colour backColor = kWindowBackground;
  Colour foreColor = kWindowText;
  bool showsBackColor = false;  // a button drawn in its BackColor
  bool multiLine = false;
  bool verticalScrollBar = false;
  bool sorted = false;
  bool tabStop = true;
  bool centred = false;
  bool bold = false;
  double points = 0;  // font size; 0 if none is stored
  std::u32string_view toolTip = {};
  ByWindow byWindow = ByWindow::kStays;
  // The control's name for assistive technology, if it is not the caption, and its purpose, if no
  // tool tip gives it.
  std::u32string_view spoken = {};
  std::u32string_view purpose = {};
};

// One row. Rows are in stacking order, front first, each container before its contents.
struct CatalogueRow {
  std::string_view name;
  Kind kind;
  std::string_view container;  // empty for Form1 itself
  std::u32string_view text;    // caption, or the first text of a box
  Place place = {};
  Stored stored = {};
};

std::span<const CatalogueRow> Catalogue();

// The row of a control. An unknown name is a bug and throws std::logic_error.
const CatalogueRow& RowOf(std::string_view name);

// Rows of the combo boxes, by name. The first row of a list is a placeholder: nothing is chosen.
inline constexpr int kPlaceholderRow = 0;
struct ModeRow {
  enum : int { kAbsolute = 1, kRelative = 2 };
};

// The rows of a combo box's list at startup.
std::span<const std::u32string_view> ComboRows(std::string_view name);

}  // namespace quill
