#include "rtf/writing/plain_text.h"

#include <algorithm>

#include "rtf/writing/encode.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

constexpr std::string_view kHead =
    "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl{\\f0\\froman\\fcharset0 Times New Roman;}}\n"
    "{\\colortbl;}\n"
    "\\pard\\plain\\f0\\fs24 ";

std::u32string DecodeUtf16(std::string_view bytes, bool bigEndian) {
  std::u32string text;
  text.reserve(bytes.size() / 2);
  char32_t high = 0;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    if (i + 1 == bytes.size()) {
      text += kReplacement;
      break;
    }
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    const char32_t unit =
        bigEndian ? char32_t{first} << 8U | second : char32_t{second} << 8U | first;
    const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
    if (low && high != 0) {
      text.back() = 0x10000 + ((high - 0xD800) << 10U) + (unit - 0xDC00);
      high = 0;
      continue;
    }
    high = unit >= 0xD800 && unit <= 0xDBFF ? unit : 0;
    text += high != 0 || low ? kReplacement : unit;
  }
  return text;
}

std::u32string Decode(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return DecodeUtf16(bytes.substr(2), false);
  if (bytes.starts_with("\xFE\xFF")) return DecodeUtf16(bytes.substr(2), true);
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  return DecodeLine(bytes);
}

}  // namespace

std::optional<std::string> FromPlainText(std::string_view bytes) {
  const std::u32string text = Decode(bytes);
  if (text.find(U'\0') != std::u32string::npos) return std::nullopt;
  std::string richText(kHead);
  richText.reserve(kHead.size() + text.size() + text.size() / 8);
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n') continue;
    if (text[i] == U'\r' || text[i] == U'\n') {
      richText += "\\par\n";
    } else {
      AppendCharacter(richText, text[i], 1, false);
    }
  }
  richText += "}\n";
  return richText;
}

}  // namespace quill::rtf
