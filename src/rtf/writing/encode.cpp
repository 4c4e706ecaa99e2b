#include "rtf/writing/encode.h"

#include <cmath>
#include <cstdlib>

#include "text/unicode.h"

namespace quill::rtf {
namespace {

void AppendUnit(std::string& to, std::uint32_t unit, std::uint32_t fallback) {
  // The number is a signed 16-bit integer.
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

Attributes InFile(Attributes attributes) {
  const int halfPoints =
      static_cast<int>(std::lround(static_cast<double>(attributes.offset) / kTwipsInHalfPoint));
  const int least = attributes.offset > 0 ? 1 : attributes.offset < 0 ? -1 : 0;
  attributes.offset = (halfPoints != 0 ? halfPoints : least) * kTwipsInHalfPoint;
  return attributes;
}

std::string WordsBetween(const Attributes& from, const Attributes& to, bool rightToLeft,
                         ColourNumbers& colours) {
  std::string words;
  if (from.colour != to.colour) words += "\\cf" + std::to_string(colours.NumberOf(to.colour));
  if (from.bold != to.bold) {
    words += to.bold ? "\\b" : "\\b0";
    // Other programs take the weight of right-to-left runs from this.
    if (rightToLeft) words += to.bold ? "\\ab" : "\\ab0";
  }
  if (from.underline != to.underline) words += to.underline ? "\\ul" : "\\ulnone";
  if (from.offset != to.offset) {
    words += to.offset < 0 ? "\\dn" : "\\up";
    words += std::to_string(std::abs(to.offset) / kTwipsInHalfPoint);
  }
  if (!words.empty()) words += ' ';
  return words;
}

}  // namespace quill::rtf
