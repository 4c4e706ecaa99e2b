// Characters and attributes to rich text.
#pragma once

#include <cstdint>
#include <string>

#include "rtf/writing/colour_numbers.h"
#include "text/format.h"

namespace quill::rtf {

// Appends one character, written so that it stands alone: no blank or letter behind it belongs to
// it. `fallback` is how many characters readers without Unicode expect behind a \u; on a symbol
// font literal letters would be symbols, so that every character is a \u.
void AppendCharacter(std::string& to, char32_t character, std::uint32_t fallback, bool symbolFont);

// Attributes as a file can hold them: a raised position in whole half-points, never rounded away.
Attributes InFile(Attributes attributes);

// The words that lead from one look to another, with the blank that ends the last of them; nothing
// where the two are the same. A colour that the table lacks gets a number. `to` must be as a file
// can hold it.
std::string WordsBetween(const Attributes& from, const Attributes& to, bool rightToLeft,
                         ColourNumbers& colours);

}  // namespace quill::rtf
