// Text for a place that has room for one line.
#pragma once

#include <string>
#include <string_view>

namespace quill::companion {

// As UTF-8; paragraph ends, line breaks and tabs become blanks.
std::string InOneLine(std::u32string_view text);

}  // namespace quill::companion
