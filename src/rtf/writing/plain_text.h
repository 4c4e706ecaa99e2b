// Plain text files as rich text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill::rtf {

// Plain text as rich text: UTF-16 with a byte order mark, UTF-8 with or without one, or
// Windows-1252. CR LF, CR and LF each end a paragraph. Nothing where the bytes are no text: where
// they hold a NUL.
std::optional<std::string> FromPlainText(std::string_view bytes);

}  // namespace quill::rtf
