// A part of a file that is no text of the document, such as a note, read as a text of its own.
#pragma once

#include <optional>
#include <string_view>

#include "text/document.h"

namespace quill::rtf {

// As far as the brace that closes the group in which the bytes begin.
std::string_view UpToClose(std::string_view bytes);

// What a group with that content would hold as text, by the tables of the document's file. It reads
// these anew, which takes far longer than a short group.
std::optional<Document> ReadFragment(const Document& document, std::string_view content);

}  // namespace quill::rtf
