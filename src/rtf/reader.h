// Reads a file's bytes into a document.
#pragma once

#include <optional>
#include <string>

#include "text/document.h"

namespace quill::rtf {

// Reads rich text or plain text. Plain text (UTF-8, UTF-16 with a byte order mark, Windows-1252) is
// converted to rich text first. Truncated rich text is read as far as it goes. Returns nothing if
// the bytes are not text or are too many for an Origin.
std::optional<Document> Read(std::string bytes);

// An empty text, ready to be saved.
Document Blank();

}  // namespace quill::rtf
