// Characters of symbol fonts, which stand at U+F020 to U+F0FF, shown as the Unicode characters that
// look like them: hardly anybody has the fonts, and other fonts have no glyph there.
#pragma once

#include <string_view>

namespace quill {

// The same character where there is no better one. What is shown never lies beyond U+FFFF, so that
// positions stay.
char32_t ShownSymbol(char32_t character, std::string_view font);

}  // namespace quill
