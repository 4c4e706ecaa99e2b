// References that form a circle.
#pragma once

#include <cstddef>
#include <vector>

#include "companion/tag_list.h"

namespace quill::companion {

// For each circle, its first tag: indices into the list, in order. A tag that refers to itself is a
// circle.
std::vector<std::size_t> ReferenceCircles(const TagList& list);

}  // namespace quill::companion
