#include "text/unicode.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quill {
namespace {

// The length of the well-formed UTF-8 sequence at the start of the bytes; 0 if there is none.
std::size_t SequenceLength(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return 0;
  // The range of the second byte excludes overlong forms, surrogates and values beyond U+10FFFF.
  const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  if (byte(1) < lowest || byte(1) > highest) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return 0;
  }
  return length;
}

char32_t Decode(std::string_view sequence) {
  const unsigned lead = static_cast<unsigned char>(sequence[0]);
  if (sequence.size() == 1) return lead;
  char32_t c = lead & (0x7FU >> sequence.size());
  for (const char byte : sequence.substr(1))
    c = c << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
  return c;
}

void Encode(char32_t c, std::string& to) {
  const auto put = [&](char32_t byte) { to += static_cast<char>(byte); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | c >> 6U);
    put(0x80 | (c & 0x3FU));
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12U);
    put(0x80 | (c >> 6U & 0x3FU));
    put(0x80 | (c & 0x3FU));
  } else {
    put(0xF0 | c >> 18U);
    put(0x80 | (c >> 12U & 0x3FU));
    put(0x80 | (c >> 6U & 0x3FU));
    put(0x80 | (c & 0x3FU));
  }
}

bool IsCharacter(char32_t c) { return c < 0xD800 || (c > 0xDFFF && c <= 0x10FFFF); }

// Decodes; the caller decides what a byte outside every sequence becomes.
template <class StrayByte>
std::u32string DecodeWith(std::string_view bytes, StrayByte stray) {
  std::u32string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    text +=
        length > 0 ? Decode(bytes.substr(0, length)) : stray(static_cast<unsigned char>(bytes[0]));
    bytes.remove_prefix(length > 0 ? length : 1);
  }
  return text;
}

}  // namespace

std::string ToUtf8(std::u32string_view text) {
  // Most lines are ASCII up to their end: those characters are copied at once.
  const auto other = std::find_if(text.begin(), text.end(), [](char32_t c) { return c >= 0x80; });
  std::string bytes(static_cast<std::size_t>(other - text.begin()), '\0');
  std::transform(text.begin(), other, bytes.begin(),
                 [](char32_t c) { return static_cast<char>(c); });
  for (auto c = other; c != text.end(); ++c) Encode(IsCharacter(*c) ? *c : kReplacement, bytes);
  return bytes;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::u32string FromUtf8(std::string_view bytes) {
  return DecodeWith(bytes, [](unsigned char) { return kReplacement; });
}

std::u32string DecodeLine(std::string_view bytes) {
  if (IsUtf8(bytes)) return FromUtf8(bytes);
  std::u32string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) text += FromWindows1252(static_cast<unsigned char>(byte));
  return text;
}

char32_t FromWindows1252(unsigned char byte) {
  static constexpr std::array<char16_t, 32> kHigh = {
      0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  return byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80U] : byte;
}

std::u32string DecodePath(std::string_view bytes) {
  return DecodeWith(bytes, [](unsigned char byte) { return char32_t{0xDC00} + byte; });
}

std::string EncodePath(std::u32string_view path) {
  std::string bytes;
  for (const char32_t c : path) {
    if (c >= 0xDC80 && c <= 0xDCFF) {
      bytes += static_cast<char>(c & 0xFFU);
    } else {
      Encode(IsCharacter(c) ? c : kReplacement, bytes);
    }
  }
  return bytes;
}

}  // namespace quill
