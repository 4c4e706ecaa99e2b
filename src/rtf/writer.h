// A document to the bytes of a rich text file.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// The source of the document with what was changed since it was read, and nothing else: colour,
// bold, underline and raised position of characters, typed and deleted characters, and new
// entries of the colour table. An unchanged document gives the bytes that were read. In a damaged
// source there are places where that can't be done; where the copy would be read as another text
// than the document's, the text is written anew, and what else the source holds is lost.
std::string Write(const Document& document);

}  // namespace quill::rtf
