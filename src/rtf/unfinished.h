// Characters whose bytes want more than they have.
#pragma once

#include <cstdint>
#include <string_view>

namespace quill::rtf {

// Whether bytes put directly behind those of a character would be read together with them: the
// character is half of a pair or the beginning of a sequence that the file breaks off, or a \u with
// less behind it than stands in for a character. `fallback` is how much that is.
bool IsUnfinished(std::string_view bytes, char32_t character, std::uint32_t fallback);

}  // namespace quill::rtf
