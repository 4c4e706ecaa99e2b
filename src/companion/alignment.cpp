#include "companion/alignment.h"

#include <algorithm>
#include <unordered_map>

// The longest pairings form a lattice: one takes the first possible partner everywhere, another the
// last. What these two agree on, all agree on.
//
// Each of the two is found by halving: the left sequence is cut in the middle, and the lengths of
// the longest pairings of its halves with the parts of the right sequence show where to cut that.
// Lengths are counted 64 at a time, as differences between neighbours in the bits of words.
namespace quill::companion {
namespace {

using Symbols = std::vector<std::uint32_t>;
using Word = std::uint64_t;
constexpr std::size_t kBits = 64;

struct Stretch {
  std::size_t begin;
  std::size_t end;

  std::size_t Length() const { return end - begin; }
};

enum class Side { kFirst, kLast };

class Pairing {
 public:
  Pairing(const Symbols& left, const Symbols& right, Side side)
      : left_(left), side_(side), partners_(left.size()) {
    for (std::size_t j = 0; j < right.size(); ++j) places_[right[j]].push_back(j);
    Pair({0, left.size()}, {0, right.size()});
  }

  const std::vector<std::optional<std::size_t>>& Partners() const { return partners_; }

 private:
  // The places of a symbol in a part of the right sequence.
  struct Places {
    const std::size_t* begin;
    const std::size_t* end;
  };
  Places PlacesOf(std::uint32_t symbol, Stretch right) const {
    const auto found = places_.find(symbol);
    if (found == places_.end()) return {nullptr, nullptr};
    const std::vector<std::size_t>& all = found->second;
    const auto begin = std::lower_bound(all.begin(), all.end(), right.begin);
    const auto end = std::lower_bound(begin, all.end(), right.end);
    return {all.data() + (begin - all.begin()), all.data() + (end - all.begin())};
  }

  void Pair(Stretch left, Stretch right) {
    if (left.Length() == 0 || right.Length() == 0) return;
    if (left.Length() == 1) {
      const Places places = PlacesOf(left_[left.begin], right);
      if (places.begin == places.end) return;
      partners_[left.begin] = side_ == Side::kFirst ? *places.begin : *(places.end - 1);
      return;
    }
    const std::size_t middle = left.begin + left.Length() / 2;
    const std::size_t cut = right.begin + Cut(left, middle, right);
    Pair({left.begin, middle}, {right.begin, cut});
    Pair({middle, left.end}, {cut, right.end});
  }

  // How much of the right sequence belongs with the first half of the left one.
  std::size_t Cut(Stretch left, std::size_t middle, Stretch right) {
    const std::vector<int> before = Lengths({left.begin, middle}, right, false);
    const std::vector<int> behind = Lengths({middle, left.end}, right, true);
    const std::size_t all = right.Length();
    std::size_t best = 0;
    for (std::size_t j = 1; j <= all; ++j) {
      const int gain = before[j] + behind[all - j] - before[best] - behind[all - best];
      if (gain > 0 || (gain == 0 && side_ == Side::kLast)) best = j;
    }
    return best;
  }

  // The lengths of the longest pairings with the first 0, 1, 2 … symbols of the right stretch or,
  // backward, with its last ones.
  std::vector<int> Lengths(Stretch left, Stretch right, bool backward) {
    // A 0 bit means that the length grows there.
    row_.assign((right.Length() + kBits - 1) / kBits, ~Word{0});
    masks_.clear();
    for (std::size_t i = 0; i < left.Length(); ++i) {
      AddSymbol(left_[backward ? left.end - 1 - i : left.begin + i], right, backward);
    }
    std::vector<int> lengths(right.Length() + 1, 0);
    for (std::size_t j = 0; j < right.Length(); ++j) {
      const bool grows = (row_[j / kBits] >> (j % kBits) & 1U) == 0;
      lengths[j + 1] = lengths[j] + (grows ? 1 : 0);
    }
    return lengths;
  }

  void AddSymbol(std::uint32_t symbol, Stretch right, bool backward) {
    const Places places = PlacesOf(symbol, right);
    if (places.begin == places.end) return;
    const auto [known, isNew] = masks_.try_emplace(symbol);
    if (isNew) known->second = MaskOf(places, right, backward);
    AddRow(known->second);
    // Only those that save more room than they take are kept: at most as many as a word has bits.
    const auto count = static_cast<std::size_t>(places.end - places.begin);
    if (count < row_.size()) masks_.erase(known);
  }

  std::vector<Word> MaskOf(Places places, Stretch right, bool backward) const {
    std::vector<Word> mask(row_.size(), 0);
    for (const std::size_t* p = places.begin; p != places.end; ++p) {
      const std::size_t bit = backward ? right.end - 1 - *p : *p - right.begin;
      mask[bit / kBits] |= Word{1} << (bit % kBits);
    }
    return mask;
  }

  void AddRow(const std::vector<Word>& mask) {
    Word carry = 0;
    for (std::size_t w = 0; w < row_.size(); ++w) {
      const Word matches = row_[w] & mask[w];
      const Word sum = row_[w] + matches + carry;
      carry = sum < row_[w] || (carry != 0 && sum == row_[w]) ? 1 : 0;
      row_[w] = sum | (row_[w] & ~mask[w]);
    }
  }

  const Symbols& left_;
  Side side_;
  std::unordered_map<std::uint32_t, std::vector<std::size_t>> places_;
  std::vector<std::optional<std::size_t>> partners_;
  std::vector<Word> row_;
  std::unordered_map<std::uint32_t, std::vector<Word>> masks_;
};

}  // namespace

std::vector<std::optional<std::size_t>> CommonPairs(const Symbols& left, const Symbols& right) {
  std::vector<std::optional<std::size_t>> common = Pairing(left, right, Side::kFirst).Partners();
  const Pairing last(left, right, Side::kLast);
  for (std::size_t i = 0; i < common.size(); ++i) {
    if (common[i] != last.Partners()[i]) common[i].reset();
  }
  return common;
}

}  // namespace quill::companion
