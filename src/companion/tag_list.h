// A tag list as the companion reads it: strictly, so that every line either is a tag or is damaged.
//
// A line is a tag if it is "t_op(", 15 fields between exactly 14 backslashes, " )", with a first
// and a last position that can be. Lines are told by their numbers in the file, from 1; empty lines
// count and are neither.
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

// The fields that take one of a few values, under the names that tables have for them.
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
  TagFields fields;  // as they stand in the line
  Range span;        // may end beyond the text
};

struct Damage {
  std::size_t line = 0;
  std::string what;  // a sentence
};

// The tags hold views into the lines: a list is moved, never copied.
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

// What a field says. The text that its box shows before anything is entered says nothing, and so
// it is empty here. Term, Value and RefTerm keep the blanks around them, others lose them.
std::u32string_view Given(const Tag& tag, std::size_t field);

// The number that a field holds, blanks dropped; nothing unless it is digits. Numbers beyond every
// text stay beyond every text.
std::optional<Position> WholeNumber(std::u32string_view field);

// What a tag refers to.
struct Reference {
  std::u32string_view term;   // empty where none is given
  std::optional<Range> span;  // where positions are given; ends at -1 where the last one is missing
};
std::optional<Reference> ReferenceOf(const Tag& tag);

// Which tag of a list a reference points to. The list must stay as it is.
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
