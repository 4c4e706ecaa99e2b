// The number of each character's format.
//
// A text seldom has many formats: a number takes 16 bits. Where there are more formats than those
// can tell, the high halves of the numbers stand in an array beside.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/format.h"

namespace quill {

class FormatNumbers {
 public:
  FormatNumbers() = default;
  FormatNumbers(std::size_t count, FormatId number) { Append(count, number); }

  std::size_t size() const { return low_.size(); }
  FormatId operator[](std::size_t at) const {
    return wide_ ? low_[at] | FormatId{high_[at]} << 16U : low_[at];
  }
  // The first place in [from, to) whose number differs from the one at `from`, or `to`.
  std::size_t EndOfStretch(std::size_t from, std::size_t to) const;

  void Append(std::size_t count, FormatId number);
  void Fill(std::size_t first, std::size_t last, FormatId number);
  void Replace(std::size_t first, std::size_t last, const FormatNumbers& numbers);

  // Room for that many; what stays unused takes no memory.
  void Reserve(std::size_t count);
  // So many are likely to come.
  void Expect(std::size_t count) const;

 private:
  void MakeRoomFor(FormatId number);
  void Widen();

  std::vector<std::uint16_t> low_;
  std::vector<std::uint16_t> high_;  // empty unless wide_
  bool wide_ = false;                // a number did not fit
};

}  // namespace quill
