#include "companion/circles.h"

#include <algorithm>
#include <optional>

namespace quill::companion {

std::vector<std::size_t> ReferenceCircles(const TagList& list) {
  const References references(list);
  std::vector<std::optional<std::size_t>> next;
  for (const Tag& tag : list.tags) next.push_back(references.TargetOf(tag));
  std::vector<std::size_t> circles;
  // The tag from which each one was first reached.
  constexpr std::size_t kNever = static_cast<std::size_t>(-1);
  std::vector<std::size_t> reachedFrom(next.size(), kNever);
  for (std::size_t start = 0; start < next.size(); ++start) {
    std::optional<std::size_t> at = start;
    while (at && reachedFrom[*at] == kNever) {
      reachedFrom[*at] = start;
      at = next[*at];
    }
    if (!at || reachedFrom[*at] != start) continue;
    std::size_t first = *at;
    for (std::size_t i = *next[*at]; i != *at; i = *next[i]) first = std::min(first, i);
    circles.push_back(first);
  }
  std::sort(circles.begin(), circles.end());
  return circles;
}

}  // namespace quill::companion
