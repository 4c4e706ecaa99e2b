// The words that make a paragraph look as it does.
#pragma once

#include <string>
#include <string_view>

#include "rtf/writing/colour_numbers.h"
#include "text/format.h"

namespace quill::rtf {

std::string NumberedWord(std::string_view name, int number);

// All of them: what held before does not matter.
std::string ParagraphWords(const ParagraphLook& look, const ParagraphDetails& details,
                           ColourNumbers& colours);

// The number of a background colour. Number 0 means none; one past the table's end means black.
int GroundNumber(Colour colour, ColourNumbers& colours);

}  // namespace quill::rtf
