#include "text/format_numbers.h"

#include <algorithm>

#include "text/large_pages.h"
#include "text/splice.h"

namespace quill {
namespace {

std::uint16_t Low(FormatId number) { return static_cast<std::uint16_t>(number); }
std::uint16_t High(FormatId number) { return static_cast<std::uint16_t>(number >> 16U); }

using Numbers = std::vector<std::uint16_t>;

std::size_t EndOfEqual(const Numbers& numbers, std::size_t from, std::size_t to,
                       std::uint16_t number) {
  while (from < to && numbers[from] == number) ++from;
  return from;
}

// Most stretches are a word and end soon; in long ones the blocks let the compiler compare many
// numbers at once.
std::size_t EndOfStretchIn(const Numbers& numbers, std::size_t from, std::size_t to) {
  constexpr std::size_t kWord = 16;
  constexpr std::size_t kBlock = 64;
  const std::uint16_t number = numbers[from];
  const std::size_t soon = std::min(to, from + kWord);
  from = EndOfEqual(numbers, from, soon, number);
  if (from < soon) return from;
  while (to - from >= kBlock) {
    std::uint16_t differs = 0;
    for (std::size_t i = 0; i < kBlock; ++i) differs |= Low(numbers[from + i] ^ number);
    if (differs != 0) break;
    from += kBlock;
  }
  return EndOfEqual(numbers, from, to, number);
}

}  // namespace

std::size_t FormatNumbers::EndOfStretch(std::size_t from, std::size_t to) const {
  if (!wide_) return EndOfStretchIn(low_, from, to);
  const FormatId number = (*this)[from];
  while (from < to && (*this)[from] == number) ++from;
  return from;
}

void FormatNumbers::Append(std::size_t count, FormatId number) {
  MakeRoomFor(number);
  const std::size_t size = low_.size() + count;
  low_.resize(size, Low(number));
  if (wide_) high_.resize(size, High(number));
}

void FormatNumbers::Fill(std::size_t first, std::size_t last, FormatId number) {
  MakeRoomFor(number);
  const auto fill = [&](Numbers& half, std::uint16_t value) {
    std::fill(half.begin() + static_cast<std::ptrdiff_t>(first),
              half.begin() + static_cast<std::ptrdiff_t>(last), value);
  };
  fill(low_, Low(number));
  if (wide_) fill(high_, High(number));
}

void FormatNumbers::Replace(std::size_t first, std::size_t last, const FormatNumbers& numbers) {
  if (numbers.wide_) Widen();
  Splice(low_, first, last, numbers.low_);
  if (!wide_) return;
  Numbers high = numbers.high_;
  high.resize(numbers.size());
  Splice(high_, first, last, high);
}

void FormatNumbers::MakeRoomFor(FormatId number) {
  if (High(number) != 0) Widen();
}

void FormatNumbers::Widen() {
  if (wide_) return;
  wide_ = true;
  high_.reserve(low_.capacity());
  high_.resize(low_.size());
}

void FormatNumbers::Reserve(std::size_t count) { low_.reserve(count); }

void FormatNumbers::Expect(std::size_t count) const {
  UseLargePages(low_.data(), count * sizeof(low_[0]));
}

}  // namespace quill
