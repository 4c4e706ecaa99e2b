#include "window/page/heights.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace quill {
namespace {

constexpr std::size_t LowestBit(std::size_t number) { return number & (~number + 1); }

}  // namespace

void Heights::Assign(std::vector<int> heights) {
  heights_ = std::move(heights);
  sums_.assign(heights_.size() + 1, 0);
  for (std::size_t i = 1; i < sums_.size(); ++i) {
    sums_[i] += heights_[i - 1];
    const std::size_t parent = i + LowestBit(i);
    if (parent < sums_.size()) sums_[parent] += sums_[i];
  }
}

void Heights::Replace(std::size_t first, std::size_t removed, const std::vector<int>& inserted) {
  if (removed == inserted.size()) {
    for (std::size_t i = 0; i < removed; ++i) Set(first + i, inserted[i]);
    return;
  }
  std::vector<int> heights = std::move(heights_);
  const auto begin = heights.begin() + static_cast<std::ptrdiff_t>(first);
  const auto at = heights.erase(begin, begin + static_cast<std::ptrdiff_t>(removed));
  heights.insert(at, inserted.begin(), inserted.end());
  Assign(std::move(heights));
}

void Heights::Set(std::size_t index, int height) {
  const int before = std::exchange(heights_[index], height);
  if (height != before) Add(index, std::int64_t{height} - before);
}

void Heights::Add(std::size_t index, std::int64_t difference) {
  for (std::size_t i = index + 1; i < sums_.size(); i += LowestBit(i)) sums_[i] += difference;
}

std::int64_t Heights::Top(std::size_t index) const {
  std::int64_t top = 0;
  for (std::size_t i = index; i > 0; i -= LowestBit(i)) top += sums_[i];
  return top;
}

std::size_t Heights::IndexAt(std::int64_t height) const {
  if (heights_.empty()) return 0;
  std::size_t index = 0;
  for (std::size_t step = std::bit_floor(heights_.size()); step > 0; step /= 2) {
    if (index + step >= sums_.size() || sums_[index + step] > height) continue;
    index += step;
    height -= sums_[index];
  }
  return std::min(index, heights_.size() - 1);
}

}  // namespace quill
