// Conversions between the program's strings of code points and the bytes outside.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quill {

// Shown for bytes that are no character: U+FFFD.
inline constexpr char32_t kReplacement = 0xFFFD;
// The text's paragraph end, U+000A, and its line break inside a paragraph, U+2028.
inline constexpr char32_t kParagraphEnd = U'\n';
inline constexpr char32_t kLineBreak = 0x2028;
// The one character that stands for a picture or an object: U+FFFC.
inline constexpr char32_t kObject = 0xFFFC;

// Encodes as UTF-8. Surrogates and values beyond U+10FFFF come out as U+FFFD.
std::string ToUtf8(std::u32string_view text);

// Whether the bytes are well-formed UTF-8 (no surrogates, no overlong forms).
bool IsUtf8(std::string_view bytes);

// Decodes UTF-8; each byte outside every well-formed sequence becomes U+FFFD.
std::u32string FromUtf8(std::string_view bytes);

// Decodes one line of a text file: as UTF-8, or as Windows-1252 if it is not well-formed UTF-8, so
// that files of older programs open. The five bytes that Windows-1252 leaves undefined become the
// control characters with the same numbers.
std::u32string DecodeLine(std::string_view bytes);

// The character of a byte in Windows-1252.
char32_t FromWindows1252(unsigned char byte);

// File names are bytes. A byte that is not UTF-8 travels through the program as U+DC80 plus the
// byte's low seven bits and comes out of EncodePath as that byte again.
std::u32string DecodePath(std::string_view bytes);
std::string EncodePath(std::u32string_view path);

}  // namespace quill
