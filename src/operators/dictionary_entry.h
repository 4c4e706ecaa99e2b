// An entry of a dictionary of temporal operators, in its two written forms.
//
//   lemma\      |C< definition >      in Parse_listbox: six blanks, a vertical bar
//   lemma\    \C< definition >        in a dictionary file: the second backslash in column 20
//
// The lemma ends at the first backslash; the category C is the one character after the second
// delimiter. Entries read from a file keep the file form, so the list holds both.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

struct OperatorEntry {
  std::u32string Lemma;
  std::u32string Category;  // "A", "B" or one blank
  std::u32string Definition;
};

// The dictionary for all texts: a bare name, in the working directory.
inline constexpr std::u32string_view kGlobalDictionary = U"globaldict.gdf";

// Characters that a lemma must not contain.
inline constexpr std::u32string_view kReservedCharacters = U"\\|<>";

// Line breaks become blanks: an entry is one line.
std::u32string ListForm(const OperatorEntry& entry);
// Without the line end. The gap is at least one blank.
std::u32string FileForm(const OperatorEntry& entry);

// The parts of an item of Parse_listbox, in either form, as the searches read them. Views into the
// item.
struct ItemParts {
  std::optional<std::u32string_view> Lemma;  // nothing in an item without a backslash
  // One character; empty if the item ends before it. Without a backslash it is the item's first
  // character, without a second delimiter the one after the backslash.
  std::u32string_view Category;
};
ItemParts CutItem(std::u32string_view item);

}  // namespace quill
