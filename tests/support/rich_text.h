// Help for tests of rich text: marks, comparisons, and a short way to write a text down.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill {

std::vector<Attributes> AttributesOf(const Document& document, Range range);
void Restore(Document& document, Range range, const std::vector<Attributes>& attributes);
// Gives a range one of the looks that marks have, by the seed.
void Mark(Document& document, Range range, Position seed);

// The same characters with the same attributes, as far as a file can hold them.
void ExpectSameText(const Document& expected, const Document& actual);

// The text in UTF-8 with a mark in front of every change of attributes, as in
// "plain <c255 b>bold red</>": c colour, b bold, u underline, o offset in twips.
std::string Dump(const Document& document);

}  // namespace quill
