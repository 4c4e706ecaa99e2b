// The tag line: the one form in which a tag exists, in TagList and in the tag list file.
//
//   t_op(ID\ Start\ End\ Term\ SessionID\ UserID\ Class\ Operator\ Mode\ Type\ Granularity\ Value
//       \ RefTerm\ RefStart\ RefStop )
//
// in one line: "t_op(", 15 fields with "\ " between them, " )". Nothing is quoted, escaped or
// trimmed: a field is the text of its control, blanks included. A backslash inside a field counts
// as a separator and shifts all later fields by one; a line break splits the tag into two lines of
// the file.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quill {

// Indices into TagFields, in the order of the line.
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

// What the controls of a tag show before anything is entered. In a line, it means that nothing was
// entered.
struct Placeholder {
  static constexpr const char32_t* kId = U"Tag-ID";
  static constexpr const char32_t* kStart = U"Start";
  static constexpr const char32_t* kEnd = U"End";
  static constexpr const char32_t* kSessionId = U"Session-ID";
  static constexpr const char32_t* kUserId = U"User-ID";
  static constexpr const char32_t* kClass = U"Class";
  static constexpr const char32_t* kOperator = U"Operator";
  static constexpr const char32_t* kMode = U"Mode";
  static constexpr const char32_t* kType = U"Type";
  static constexpr const char32_t* kGranularity = U"Granularity";
  static constexpr const char32_t* kValue = U"Value ?";
  static constexpr const char32_t* kRefTerm = U"Reference Tag";
};

using TagFields = std::array<std::u32string_view, TagField::kCount>;

std::u32string ComposeTag(const TagFields& fields);

// Cuts the first `count` fields, as views into the line; the others are empty. So are a field whose
// separators are missing or out of order, and all fields after a missing separator. The last field
// keeps the blank of the closing " )". Read numbers with Val.
TagFields CutTag(std::u32string_view line, std::size_t count = TagField::kCount);

// The first and last character of a tag's term, 1-based; 0 if it cannot be cut.
struct TagSpan {
  double start = 0;
  double end = 0;
};
TagSpan CutTagSpan(std::u32string_view line);

// The number of a tag as the numbering reads it: the text between the first "(" and the first "\",
// if that is decimal digits only.
std::optional<double> CutTagNumber(std::u32string_view line);

}  // namespace quill
