// Writes a document as a patched copy of its source.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// What Write in writer.h returns for a sound source. If the source is not well-formed, the bytes
// may read back as another text.
std::string Patched(const Document& document);

}  // namespace quill::rtf
