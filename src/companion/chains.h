// Chains: elements laid out in their order, each at one of its places, without overlap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/document.h"

namespace quill::companion {

// An element at one of its places.
struct Link {
  std::size_t element;
  Range place;  // not empty
  std::int64_t weight;
};

// The indices of the links that all the heaviest chains have in common. Links must be in the order
// of their elements, and all places before `end`.
std::vector<std::size_t> CommonLinks(const std::vector<Link>& links, Position end);

}  // namespace quill::companion
