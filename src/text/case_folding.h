// Comparison that ignores case: simple folding, one code point to one, so that a hit is as long as
// its term.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill {

char32_t FoldCase(char32_t character);
std::u32string FoldCase(std::u32string_view text);

// All characters that fold to `folded`, itself first.
std::vector<char32_t> CaseVariants(char32_t folded);

}  // namespace quill
