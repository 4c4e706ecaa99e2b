#include "tags/tag_record.h"

#include <algorithm>

#include "text/numbers.h"

namespace quill {
namespace {

constexpr std::u32string_view kOpening = U"t_op(";
constexpr std::u32string_view kSeparator = U"\\ ";
constexpr std::u32string_view kClosing = U" )";
constexpr std::size_t kMissing = std::u32string_view::npos;

std::size_t FindFrom(std::u32string_view line, char32_t wanted, std::size_t from) {
  return from == kMissing ? kMissing : line.find(wanted, from);
}

std::size_t Behind(std::size_t position) { return position == kMissing ? kMissing : position + 1; }

// The text between two places; empty if the end is missing or precedes the start.
std::u32string_view Between(std::u32string_view line, std::size_t start, std::size_t end) {
  if (end == kMissing || start > end) return {};
  return line.substr(start, end - start);
}

}  // namespace

std::u32string ComposeTag(const TagFields& fields) {
  std::u32string line(kOpening);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) line += kSeparator;
    line += fields[i];
  }
  line += kClosing;
  return line;
}

TagFields CutTag(std::u32string_view line, std::size_t count) {
  TagFields fields;
  std::size_t start = kOpening.size();
  std::size_t searchFrom = 0;
  std::size_t closingFrom = kMissing;
  for (std::size_t i = 0; i < std::min<std::size_t>(count, TagField::kRefStop); ++i) {
    const std::size_t separator = FindFrom(line, U'\\', searchFrom);
    fields[i] = Between(line, start, separator);
    closingFrom = searchFrom;
    searchFrom = Behind(separator);
    start = separator == kMissing ? kMissing : separator + kSeparator.size();
  }
  if (count < TagField::kCount) return fields;
  // The search for the closing parenthesis starts after the last separator but one, so a
  // parenthesis in the last field but one leaves the last field empty. That is intended.
  fields[TagField::kRefStop] = Between(line, start, FindFrom(line, U')', closingFrom));
  return fields;
}

TagSpan CutTagSpan(std::u32string_view line) {
  const TagFields fields = CutTag(line, TagField::kEnd + 1);
  return {Val(fields[TagField::kStart]), Val(fields[TagField::kEnd])};
}

std::optional<double> CutTagNumber(std::u32string_view line) {
  const std::size_t opening = line.find(U'(');
  // Without a parenthesis, the number begins at the start of the line.
  const std::size_t start = opening == kMissing ? 0 : opening + 1;
  const std::size_t end = line.find(U'\\');
  if (end == kMissing || start > end) return std::nullopt;
  return NumberFromDigits(line.substr(start, end - start));
}

}  // namespace quill
