// SYMBOL fields: instructions that name one character of a font.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "rtf/syntax/code_page.h"

namespace quill::rtf {

struct SymbolField {
  enum CharacterSet : std::uint8_t { kFont, kUnicode, kShiftJis };

  std::uint32_t number = 0;
  CharacterSet set = kFont;
  std::string font;  // as the file writes it; empty if it names none
};

// Parses the content of a \fldinst group; bytes after its closing brace are ignored. Returns
// nothing for other fields' instructions.
std::optional<SymbolField> ReadSymbolField(std::string_view content);

// The character that a field names. Its number refers to `ansi` unless the field names another set
// or the font is a symbol font. Returns 0 if the number is no character's.
char32_t CharacterOf(const SymbolField& field, const CodePage& ansi, bool symbolFont);

}  // namespace quill::rtf
