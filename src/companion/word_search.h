// Finds words again in a stretch of text, knowing only their characters and their order.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::companion {

// Lays words into a text in their order, without overlap: first as many as possible at raised
// stretches with their spelling, then as many of the others as possible wherever their characters
// occur. Returns where each word begins, if all such layouts agree on it. If there are too many
// possibilities to try, returns none.
//
// Words must not be empty. The stretches lie in the text, in order and without overlap.
std::vector<std::optional<Position>> PlaceWords(std::u32string_view text,
                                                const std::vector<std::u32string_view>& words,
                                                const std::vector<Range>& raised);

}  // namespace quill::companion
