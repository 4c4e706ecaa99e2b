// What stands around paragraphs without being text: the labels of lists and the ends of pages. Read
// from the bytes in front of a paragraph when it is asked for; the document keeps none of it.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// In all of these `paragraph` is the position of a paragraph's first character, inside the text.

// About how many characters long the bullet or number is that the file gives the paragraph; 0
// where there is none.
int LabelLength(const Document& document, Position paragraph);

struct Label {
  std::u32string text;  // without blanks around it, at most 32 characters
  std::string font;     // the typeface of its first character
};
// It reads the tables of the file anew, which takes a thousand times longer.
Label LabelOf(const Document& document, Position paragraph);

// Whether the file begins another page behind the paragraph whose last character stands there.
bool EndsPage(const Document& document, Position paragraphEnd);

}  // namespace quill::rtf
