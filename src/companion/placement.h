// Where the tags of a list belong in a text that has been edited since.
//
// Tags that overlap or touch form a block, which keeps its shape. Its possible places are the
// raised stretches of the text with the same spelling. Blocks keep their order. Of all ways to
// place them, those count that place the most blocks by their marks and, among these, the most
// others by their characters; a block has a place if all of these agree on it.
#pragma once

#include <optional>
#include <vector>

#include "companion/tagged_text.h"

namespace quill::companion {

struct Placement {
  // For each tag of the list: where it belongs, which may be where it is; nothing if that is
  // unknown.
  std::vector<std::optional<Range>> tags;
  // The same for the reference of each tag; nothing, too, if it has none with positions.
  std::vector<std::optional<Range>> references;
};

Placement Place(const Text& text, const TagList& list);

}  // namespace quill::companion
