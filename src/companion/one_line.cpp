#include "companion/one_line.h"

#include "text/unicode.h"

namespace quill::companion {

std::string InOneLine(std::u32string_view text) {
  std::u32string line(text);
  for (char32_t& c : line) {
    if (c == kParagraphEnd || c == kLineBreak || c == U'\t') c = U' ';
  }
  return ToUtf8(line);
}

}  // namespace quill::companion
