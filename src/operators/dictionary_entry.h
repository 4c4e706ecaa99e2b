// An entry of a dictionary of temporal operators, in its two written forms.
//
//   lemma\      |C< definition >      in Parse_listbox: six blanks, a vertical bar
//   lemma\    \C< definition >        in a dictionary file: the second backslash in column 20
//
// The lemma ends at the first backslash; the category C is the one character behind the second
// delimiter. An entry that was read from a file stays in file form, so that both stand in the list.
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

// The dictionary of all texts: a bare name, in the directory in which the program was started.
inline constexpr std::u32string_view kGlobalDictionary = U"globaldict.gdf";

// The characters that no lemma may hold.
inline constexpr std::u32string_view kReservedCharacters = U"\\|<>";

// Line breaks become blanks, so that an entry is one line.
std::u32string ListForm(const OperatorEntry& entry);
// Without the line end. The gap is as wide as is needed, and never narrower than one blank.
std::u32string FileForm(const OperatorEntry& entry);

// The parts of an item of Parse_listbox, of either form, as the searches take them. Views into it.
struct ItemParts {
  std::optional<std::u32string_view> Lemma;  // nothing in an item without a backslash
  // Of one character; empty where the item ends before it. The item's first character where it has
  // no backslash, the one behind the backslash where it has no second delimiter.
  std::u32string_view Category;
};
ItemParts CutItem(std::u32string_view item);

}  // namespace quill
