// Words that are known by their characters and their order alone, found again in a stretch of text.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::companion {

// Lays words into a text in their order, apart from each other: first as many as can be at raised
// stretches that are spelled as they are, then as many of the others as can be wherever their
// characters stand. Returns the begin of every word which all such ways put at the same place.
// Where there are too many possibilities to look through, none is returned.
//
// Words are not empty. The stretches lie in the text, in order and apart.
std::vector<std::optional<Position>> PlaceWords(std::u32string_view text,
                                                const std::vector<std::u32string_view>& words,
                                                const std::vector<Range>& raised);

}  // namespace quill::companion
