// Helpers for tests of rich text: comparisons, and a short notation for a text.
#pragma once

#include <string>
#include <string_view>

#include "round_trip/round_trip.h"
#include "text/document.h"

namespace quill {

// The same characters with the same attributes and looks, as far as a file can hold them.
void ExpectSameText(const Document& expected, const Document& actual);

// The text in UTF-8 with a mark before every change of attributes, as in "plain <c255 b>bold
// red</>": c colour, b bold, u underline, o offset in twips.
std::string Dump(const Document& document);

}  // namespace quill
