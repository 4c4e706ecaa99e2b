// Characters to rich text.
#pragma once

#include <cstdint>
#include <string>

namespace quill::rtf {

// Appends one character, written so that it stands alone: no blank or letter behind it belongs to
// it. `fallback` is how many characters readers without Unicode expect behind a \u; on a symbol
// font literal letters would be symbols, so that every character is a \u.
void AppendCharacter(std::string& to, char32_t character, std::uint32_t fallback, bool symbolFont);

}  // namespace quill::rtf
