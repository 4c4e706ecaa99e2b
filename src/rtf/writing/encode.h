// Spells characters and attributes as rich text.
#pragma once

#include <cstdint>
#include <string>

#include "rtf/writing/colour_numbers.h"
#include "text/format.h"

namespace quill::rtf {

// Appends one character such that no blank or letter after it is read as part of it. `fallback` is
// how many characters must stand in for a \u. In a symbol font literal letters would be symbols, so
// every character is written as \u.
void AppendCharacter(std::string& to, char32_t character, std::uint32_t fallback, bool symbolFont);

// Attributes as a file can hold them: positions in half-points, never rounded to zero.
Attributes InFile(Attributes attributes);

// The words that change one look into another, with a final blank; empty if they are the same.
// Colours that the table lacks get a number. `to` must be as a file can hold it.
std::string WordsBetween(const Attributes& from, const Attributes& to, bool rightToLeft,
                         ColourNumbers& colours);

}  // namespace quill::rtf
