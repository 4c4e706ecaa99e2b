// Replacing a stretch of an array.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quill {

// Puts items in place of those in [first, last). What follows is moved once.
template <class T>
void Splice(std::vector<T>& into, std::size_t first, std::size_t last,
            const std::vector<T>& items) {
  const std::size_t common = std::min(items.size(), last - first);
  const auto middle = items.begin() + static_cast<std::ptrdiff_t>(common);
  const auto copied =
      std::copy(items.begin(), middle, into.begin() + static_cast<std::ptrdiff_t>(first));
  if (items.size() > common) {
    into.insert(copied, middle, items.end());
  } else {
    into.erase(copied, into.begin() + static_cast<std::ptrdiff_t>(last));
  }
}

}  // namespace quill
