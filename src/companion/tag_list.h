// A tag list as the companion reads it: strictly, so that every line is either a tag or damaged.
//
// A line is a tag if it is "t_op(", 15 fields separated by exactly 14 backslashes, " )", with a
// possible first and last position. Lines are numbered from 1, as in the file; empty lines are
// counted and are neither.
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tags/tag_record.h"
#include "text/document.h"

namespace quill::companion {

// The fields that take one of a few values, with their names in tables.
struct EnumeratedField {
  const char* name;
  std::size_t field;
};
inline constexpr std::array<EnumeratedField, 5> kEnumeratedFields = {
    {{"class", TagField::kClass},
     {"operator", TagField::kOperator},
     {"mode", TagField::kMode},
     {"type", TagField::kType},
     {"granularity", TagField::kGranularity}}};

struct Tag {
  std::size_t line = 0;
  TagFields fields;  // as in the line
  Range span;        // may end beyond the text
};

struct Damage {
  std::size_t line = 0;
  std::string what;  // a sentence
};

// The tags are views into the lines, so a list may be moved but not copied.
struct TagList {
  TagList() = default;
  TagList(TagList&&) = default;
  TagList& operator=(TagList&&) = default;
  TagList(const TagList&) = delete;
  TagList& operator=(const TagList&) = delete;
  ~TagList() = default;

  std::string path;  // as given
  std::string bytes;
  std::vector<std::u32string> lines;
  std::vector<Tag> tags;  // in the order of lines
  std::vector<Damage> damages;
};

TagList ParseTagList(std::string path, std::string bytes);

// Counts tags that end beyond a text of that length as damaged.
void LeaveOutBeyond(TagList& list, Position length);

// The content of a field; empty if it holds what its box shows before anything is entered. Term,
// Value and RefTerm keep the blanks around them, other fields lose them.
std::u32string_view Given(const Tag& tag, std::size_t field);

// The number in a field, ignoring blanks; nothing unless the rest is digits. A number beyond every
// text remains beyond every text.
std::optional<Position> WholeNumber(std::u32string_view field);

// What a tag refers to.
struct Reference {
  std::u32string_view term;   // empty if none is given
  std::optional<Range> span;  // if positions are given; ends at -1 if the last one is missing
};
std::optional<Reference> ReferenceOf(const Tag& tag);

// Which tag of a list a reference points to. The list must not change meanwhile.
class References {
 public:
  explicit References(const TagList& list);
  // The index of the tag in the list.
  std::optional<std::size_t> TargetOf(const Tag& tag) const;
  std::optional<std::size_t> LastAt(Range span) const;

 private:
  std::map<std::pair<Position, Position>, std::size_t> lastAt_;
};

}  // namespace quill::companion
