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
  std::string font;  // as the file writes it; empty where none is named
};

// What a \fldinst group says, whose content the bytes begin with; nothing for the instruction of
// any other field.
std::optional<SymbolField> ReadSymbolField(std::string_view content);

// The character that is meant: `ansi` has those that neither the field nor a font of symbols
// numbers in its own way. 0 where the number is no character's.
char32_t CharacterOf(const SymbolField& field, const CodePage& ansi, bool symbolFont);

}  // namespace quill::rtf
