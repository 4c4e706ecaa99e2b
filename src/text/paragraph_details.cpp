#include "text/paragraph_details.h"

#include <algorithm>
#include <limits>

namespace quill {
namespace {

// More than a reader could tell apart; the length of a list fits a byte.
constexpr std::size_t kMostLists = std::numeric_limits<ParagraphDetails::List>::max();
constexpr std::uint8_t kMostInList = 100;

std::uint64_t KeyOf(ParagraphDetails::List list, const ParagraphDetail& detail) {
  return list | std::uint64_t{detail.kind} << 16U | std::uint64_t{detail.which} << 24U |
         std::uint64_t{static_cast<std::uint32_t>(detail.value)} << 32U;
}

}  // namespace

ParagraphDetails::List ParagraphDetails::Add(List list, const ParagraphDetail& detail) {
  const std::uint64_t key = KeyOf(list, detail);
  const auto known = known_.find(key);
  if (known != known_.end()) return known->second;
  const std::uint8_t length = nodes_[list].length;
  if (length == kMostInList || nodes_.size() > kMostLists) return list;
  nodes_.push_back({list, static_cast<std::uint8_t>(length + 1), detail});
  return known_[key] = static_cast<List>(nodes_.size() - 1);
}

std::vector<ParagraphDetail> ParagraphDetails::operator[](List list) const {
  std::vector<ParagraphDetail> details;
  for (; list != 0; list = nodes_[list].before) details.push_back(nodes_[list].last);
  std::ranges::reverse(details);
  return details;
}

}  // namespace quill
