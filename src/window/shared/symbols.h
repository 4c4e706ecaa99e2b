// Characters of symbol fonts, U+F020 to U+F0FF, shown as the Unicode characters that look like
// them: few machines have these fonts, and other fonts have no glyphs there.
#pragma once

#include <string_view>

namespace quill {

// The character itself if there is no better one. The result is never beyond U+FFFF, so positions
// do not change.
char32_t ShownSymbol(char32_t character, std::string_view font);

}  // namespace quill
