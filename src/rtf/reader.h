// Bytes of a file to a document.
#pragma once

#include <optional>
#include <string>

#include "text/document.h"

namespace quill::rtf {

// Reads rich text, or plain text (UTF-8, UTF-16 with a byte order mark, Windows-1252), which is
// turned into rich text first. Rich text that breaks off is read as far as it goes. Nothing where
// the bytes are no text, or beyond what offsets can count.
std::optional<Document> Read(std::string bytes);

// An empty text, ready to be saved.
Document Blank();

}  // namespace quill::rtf
