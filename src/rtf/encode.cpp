#include "rtf/encode.h"

#include "text/unicode.h"

namespace quill::rtf {
namespace {

void AppendUnit(std::string& to, std::uint32_t unit, std::uint32_t fallback) {
  // The number is a signed one of sixteen bits.
  const int number = unit > 0x7FFF ? static_cast<int>(unit) - 0x10000 : static_cast<int>(unit);
  to += "\\u" + std::to_string(number);
  to.append(fallback > 0 ? std::string(fallback, '?') : " ");
}

void AppendUnicode(std::string& to, char32_t c, std::uint32_t fallback) {
  if (c < 0x10000) return AppendUnit(to, c, fallback);
  AppendUnit(to, 0xD800 + ((c - 0x10000) >> 10U), fallback);
  AppendUnit(to, 0xDC00 + ((c - 0x10000) & 0x3FFU), fallback);
}

}  // namespace

void AppendCharacter(std::string& to, char32_t character, std::uint32_t fallback, bool symbolFont) {
  const bool isCharacter = character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
  const char32_t c = isCharacter ? character : kReplacement;
  if (c == kParagraphEnd) {
    to += "\\par ";
  } else if (c == kLineBreak) {
    to += "\\line ";
  } else if (c == U'\t') {
    to += "\\tab ";
  } else if (c == 0xA0) {
    to += "\\~";
  } else if (c < 0x20 || c > 0x7E || symbolFont) {
    AppendUnicode(to, c, fallback);
  } else {
    if (c == U'\\' || c == U'{' || c == U'}') to += '\\';
    to += static_cast<char>(c);
  }
}

}  // namespace quill::rtf
