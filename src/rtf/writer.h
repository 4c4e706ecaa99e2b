// Writes a document as a rich text file.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// Returns the document's source with only what was changed since: colour, bold, underline and
// raised position of characters, typed and deleted characters, and new entries of the colour table.
// An unchanged document gives the bytes that were read. If the source is damaged so that such a
// copy would be read as another text, the text is written from scratch, and whatever else the
// source held is lost.
std::string Write(const Document& document);

}  // namespace quill::rtf
