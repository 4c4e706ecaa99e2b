// Converts plain text to rich text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill::rtf {

// Accepts UTF-16 with a byte order mark, UTF-8 with or without one, and Windows-1252. CR LF, CR and
// LF each end a paragraph. Returns nothing if the text holds a NUL.
std::optional<std::string> FromPlainText(std::string_view bytes);

}  // namespace quill::rtf
