#include "text/origin_list.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "text/large_pages.h"
#include "text/splice.h"

namespace quill {

std::uint32_t OriginList::LongAt(Offset begin) const {
  return std::lower_bound(long_.begin(), long_.end(), begin,
                          [](const Long& entry, Offset at) { return entry.begin < at; })
      ->length;
}

void OriginList::Remember(const Long& entry) {
  const auto place =
      std::upper_bound(long_.begin(), long_.end(), entry.begin,
                       [](Offset at, const Long& other) { return at < other.begin; });
  if (place != long_.begin() && std::prev(place)->begin == entry.begin) {
    *std::prev(place) = entry;
  } else {
    long_.insert(place, entry);
  }
}

bool OriginList::HasTyped() const {
  return size() > 0 && std::memchr(shapes_.data(), 0, size()) != nullptr;
}

// Searches in steps that double, because each search usually starts near its answer.
std::size_t OriginList::FirstBehind(Offset offset, std::size_t from) const {
  if (from == size() || begins_[from] > offset) return from;
  std::size_t step = 1;
  while (from + step < size() && begins_[from + step] <= offset) step *= 2;
  const auto first = begins_.begin() + static_cast<std::ptrdiff_t>(from + step / 2);
  const auto last = begins_.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, size()));
  return static_cast<std::size_t>(std::upper_bound(first, last, offset) - begins_.begin());
}

void OriginList::Append(const Origin& origin) {
  const std::uint32_t length = std::min<std::uint32_t>(origin.length, kLong);
  begins_.push_back(origin.begin);
  shapes_.push_back(static_cast<std::uint8_t>(length | origin.kind << kKindShift));
  if (length == kLong) Remember({origin.begin, origin.length});
}

void OriginList::AppendBytes(std::size_t count, Offset begin) {
  const std::size_t size = begins_.size();
  begins_.resize(size + count);
  std::iota(begins_.begin() + static_cast<std::ptrdiff_t>(size), begins_.end(), begin);
  shapes_.resize(size + count, 1);
}

void OriginList::ExtendLast(Offset end) {
  Origin last = (*this)[size() - 1];
  last.length = end - last.begin;
  begins_.pop_back();
  shapes_.pop_back();
  Append(last);
}

void OriginList::Replace(std::size_t first, std::size_t last, const OriginList& origins) {
  Splice(begins_, first, last, origins.begins_);
  Splice(shapes_, first, last, origins.shapes_);
  for (const Long& entry : origins.long_) Remember(entry);
}

void OriginList::Reserve(std::size_t count) {
  begins_.reserve(count);
  shapes_.reserve(count);
}

void OriginList::Expect(std::size_t count) const {
  UseLargePages(begins_.data(), count * sizeof(begins_[0]));
  UseLargePages(shapes_.data(), count * sizeof(shapes_[0]));
}

}  // namespace quill
