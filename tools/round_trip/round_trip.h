// What must hold for every rich text that is loaded, marked and saved; shared by the tests, the
// checking tool and the fuzz targets.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill {

// Where two texts differ: in a character, in one of its four attributes (as far as a file can hold
// them), or in the rest of its look. Empty if they are the same.
std::string Difference(const Document& expected, const Document& actual);

// Whether the bytes are those that the original was read from, apart from additions to their colour
// tables.
bool SameButForColours(const Document& original, std::string_view bytes);

// The attributes of every character of a range, for Restore.
std::vector<Attributes> AttributesOf(const Document& document, Range range);
void Restore(Document& document, Range range, const std::vector<Attributes>& attributes);

// Gives a range one of the looks of marks, chosen by the seed.
void Mark(Document& document, Range range, Position seed);

// Marks every so many words, each of a letter or more, with the looks of marks in turn, so that
// each word changes. Returns the words.
std::vector<Range> MarkWords(Document& document, std::size_t every = 3);

}  // namespace quill
