// Character classes for control words. The C library's depend on the locale.
#pragma once

namespace quill::rtf {

constexpr bool IsLetter(char c) {
  const int lower = c | 0x20;  // turns no other character into a letter
  return lower >= 'a' && lower <= 'z';
}
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr char AsciiLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// The value of a hexadecimal digit, -1 for any other character.
constexpr int HexValue(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}
constexpr bool IsHexDigit(char c) { return HexValue(c) >= 0; }

}  // namespace quill::rtf
