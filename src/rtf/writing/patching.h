// A document to the bytes of its source, changed where the document was.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// The source of the document with what was changed since it was read, and nothing else: colour,
// bold, underline and raised position of characters, typed and deleted characters, and new
// entries of the colour table. An unchanged document gives the bytes that were read. Where the
// source is not well-formed, the bytes may be read as another text.
std::string Patched(const Document& document);

}  // namespace quill::rtf
