// Text where there is room for one line only.
#pragma once

#include <string>
#include <string_view>

namespace quill::companion {

// As UTF-8; paragraph ends, line breaks and tabs become blanks.
std::string InOneLine(std::u32string_view text);

}  // namespace quill::companion
