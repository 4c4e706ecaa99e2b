// The typeface of a symbol that is written as a field, read from its character's bytes on demand.
#pragma once

#include <string>
#include <string_view>

namespace quill::rtf {

// The typeface named by the SYMBOL field in a group; empty for any other group.
std::string FontOfSymbol(std::string_view group);

}  // namespace quill::rtf
