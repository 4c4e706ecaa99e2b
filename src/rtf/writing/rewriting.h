// Writes a document as a new rich text file.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// Keeps the text, the look of characters and paragraphs, pictures, objects and the names of fonts,
// and nothing else of the source.
std::string Rewritten(const Document& document);

}  // namespace quill::rtf
