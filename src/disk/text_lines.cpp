#include "disk/text_lines.h"

#include <algorithm>

#include "text/unicode.h"

namespace quill {

std::string_view MarkInFrontOf(std::string_view firstLine) {
  return firstLine.starts_with(kByteOrderMark) ? kByteOrderMark : std::string_view();
}

std::vector<std::string_view> SplitLines(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  std::vector<std::string_view> lines;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find_first_of("\r\n"), bytes.size());
    lines.push_back(bytes.substr(0, end));
    bytes.remove_prefix(end);
    bytes.remove_prefix(bytes.starts_with("\r\n") ? 2 : bytes.empty() ? 0 : 1);
  }
  return lines;
}

std::vector<std::u32string> DecodeLines(std::string_view bytes) {
  std::vector<std::u32string> lines;
  for (const std::string_view line : SplitLines(bytes)) lines.push_back(DecodeLine(line));
  return lines;
}

std::string EncodeLine(std::u32string_view line) {
  if (line.find(kParagraphEnd) == std::u32string_view::npos) return ToUtf8(line);
  std::u32string ended;
  ended.reserve(line.size());
  for (const char32_t c : line) {
    if (c == kParagraphEnd && !ended.ends_with(U'\r')) ended += U'\r';
    ended += c;
  }
  return ToUtf8(ended);
}

}  // namespace quill
