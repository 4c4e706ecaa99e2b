// Which tag stands at a place of the text.
#pragma once

#include <optional>

#include "text/document.h"

namespace quill {

class Form1;
class ListBox;

// Whether a tag can stand anywhere: post-processing is on show, the text is more than one blank
// and the list has lines.
bool HasTagsToLookFor(const Form1& form);

// The index of the first line of the list whose span holds the caret (0-based), from the gap before
// its first character to the gap behind its last. A line that cannot be cut holds the caret at 0.
std::optional<int> FindCoveringTag(const ListBox& list, Position caret);

}  // namespace quill
