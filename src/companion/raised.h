// The raised words of a text, which show where tags are and of which kind.
#pragma once

#include <vector>

#include "companion/tagged_text.h"

namespace quill::companion {

// The kind of a mark and of an operator: blue or red.
enum class Kind { kA, kB };

// The maximal raised stretches, whatever their colours, in order.
std::vector<Range> RaisedStretches(const Text& text);

// The maximal raised stretches of one kind, in order.
std::vector<Range> MarkedStretches(const Text& text);

// Whether a non-empty range lies in one of the stretches, which are in order and do not overlap.
bool LiesIn(const std::vector<Range>& stretches, Range range);

// Whether the whole of a raised range has the colour of a kind.
bool HasColourOf(Kind kind, const Text& text, Range range);

}  // namespace quill::companion
