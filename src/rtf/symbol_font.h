// The typeface of a symbol that a field stands for, read from the bytes of its character when it is
// asked for.
#pragma once

#include <string>
#include <string_view>

namespace quill::rtf {

// The typeface that a SYMBOL field names whose group these bytes are; empty for anything else.
std::string FontOfSymbol(std::string_view group);

}  // namespace quill::rtf
