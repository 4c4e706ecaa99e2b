// Where the tags of a list belong in a text whose words were changed since.
//
// Tags that overlap or touch form a block, which keeps its shape. Its places are the raised
// stretches of the text that are spelled as it. Blocks keep their order. Of all ways to place them,
// those count that place most blocks by their marks and, of these, most others by their characters;
// a block has a place where all of these agree.
#pragma once

#include <optional>
#include <vector>

#include "companion/tagged_text.h"

namespace quill::companion {

struct Placement {
  // For each tag of the list: where it belongs, which may be where it is; nothing where that is not
  // known.
  std::vector<std::optional<Range>> tags;
  // The same for the reference of each tag; nothing, too, where it has none with positions.
  std::vector<std::optional<Range>> references;
};

Placement Place(const Text& text, const TagList& list);

}  // namespace quill::companion
