// The tag line: the one form in which a tag exists, in TagList and in the tag list file.
//
//   t_op(ID\ Start\ End\ Term\ SessionID\ UserID\ Class\ Operator\ Mode\ Type\ Granularity\ Value
//       \ RefTerm\ RefStart\ RefStop )
//
// in one line: "t_op(", 15 fields with "\ " between them, " )". Nothing is quoted, escaped or
// trimmed; a field is the text of its control, blanks included. A backslash inside a field counts
// as a separator when the line is cut, so that every later field shifts by one; a line break makes
// two lines of the tag in the file.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quill {

// The fields in the order of the line, as indices into TagFields.
struct TagField {
  enum : std::size_t {
    kId,
    kStart,
    kEnd,
    kTerm,
    kSessionId,
    kUserId,
    kClass,
    kOperator,
    kMode,
    kType,
    kGranularity,
    kValue,
    kRefTerm,
    kRefStart,
    kRefStop,
    kCount
  };
};

using TagFields = std::array<std::u32string_view, TagField::kCount>;

std::u32string ComposeTag(const TagFields& fields);

// Views into the line. A missing separator makes all later ones missing; a field whose separators
// are missing, or stand in no order, is empty. The last field keeps the blank of the closing " )".
// Numbers among the fields are to be read with Val. Only the first `count` fields are cut; the
// others stay empty.
TagFields CutTag(std::u32string_view line, std::size_t count = TagField::kCount);

// Where a tag's term stands: its first and last character, 1-based. 0 for what cannot be cut.
struct TagSpan {
  double start = 0;
  double end = 0;
};
TagSpan CutTagSpan(std::u32string_view line);

// The number of a tag, cut in the way of the numbering: between the first "(" and the first "\".
// Nothing where that is not decimal digits only.
std::optional<double> CutTagNumber(std::u32string_view line);

}  // namespace quill
