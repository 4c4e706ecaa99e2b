#include "window/text/position_map.h"

#include <algorithm>

namespace quill {
namespace {

std::vector<Position> WideIn(std::u32string_view text, Position offset) {
  std::vector<Position> wide;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] > 0xFFFF) wide.push_back(offset + static_cast<Position>(i));
  }
  return wide;
}

}  // namespace

void PositionMap::Load(std::u32string_view text) { wide_ = WideIn(text, 0); }

void PositionMap::Replace(Position at, Position removed, std::u32string_view inserted) {
  auto place = std::lower_bound(wide_.begin(), wide_.end(), at);
  place = wide_.erase(place, std::lower_bound(place, wide_.end(), at + removed));
  const Position growth = static_cast<Position>(inserted.size()) - removed;
  for (auto later = place; later != wide_.end(); ++later) *later += growth;
  const std::vector<Position> fresh = WideIn(inserted, at);
  wide_.insert(place, fresh.begin(), fresh.end());
}

int PositionMap::ToWidget(Position position) const {
  const auto before = std::lower_bound(wide_.begin(), wide_.end(), position) - wide_.begin();
  return static_cast<int>(position + before);
}

Position PositionMap::ToModel(int position) const {
  // The wide character number k stands at wide_[k] + k in the widget.
  std::size_t low = 0;
  std::size_t high = wide_.size();
  while (low < high) {
    const std::size_t middle = (low + high) / 2;
    if (wide_[middle] + static_cast<Position>(middle) < position) {
      low = middle + 1;
    } else {
      high = middle;
    }
  }
  return position - static_cast<Position>(low);
}

}  // namespace quill
