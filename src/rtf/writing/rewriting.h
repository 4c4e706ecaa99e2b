// A document to a rich text file of our own making.
#pragma once

#include <string>

#include "text/document.h"

namespace quill::rtf {

// The text with the look of its characters and paragraphs, its pictures and its objects; nothing
// else that the source says. What the table of fonts said is put in the form that programs write.
std::string Rewritten(const Document& document);

}  // namespace quill::rtf
