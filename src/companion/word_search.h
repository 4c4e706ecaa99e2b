// Words that are known by their characters and their order alone, found again in a stretch of text.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::companion {

// Lays words into a text in their order, apart from each other, as many as can be. Returns the
// begin of every word which all such ways put at the same place. Where there are too many
// possibilities to look through, none is returned.
std::vector<std::optional<Position>> PlaceWords(std::u32string_view text,
                                                const std::vector<std::u32string_view>& words);

}  // namespace quill::companion
