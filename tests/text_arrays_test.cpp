// The arrays of the text, which pack their items, compared with plain vectors under random edits.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <vector>

#include "text/format_numbers.h"
#include "text/origin_list.h"

namespace quill {
namespace {

// A stretch of [0, size].
struct Stretch {
  std::size_t first;
  std::size_t last;
};

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}
  std::size_t Below(std::size_t limit) { return random_() % limit; }
  Stretch In(std::size_t size) {
    const std::size_t first = Below(size + 1);
    return {first, first + Below(std::min<std::size_t>(size - first, 90) + 1)};
  }

 private:
  std::mt19937 random_;
};

template <class T>
void PutInPlace(std::vector<T>& plain, Stretch at, const std::vector<T>& items) {
  plain.erase(plain.begin() + std::ptrdiff_t(at.first), plain.begin() + std::ptrdiff_t(at.last));
  plain.insert(plain.begin() + std::ptrdiff_t(at.first), items.begin(), items.end());
}

// Numbers beyond 16 bits come early, late, never, or into an empty array.
TEST(FormatNumbers, AgreeWithAPlainVector) {
  constexpr FormatId kNumbers[] = {0, 1, 0xFFFF, 0x10000, 0x1FFFF, 0x20001};
  for (unsigned seed = 0; seed < 40; ++seed) {
    Dice dice(seed);
    FormatNumbers numbers;
    std::vector<FormatId> plain;
    for (std::size_t step = 0; step < 60; ++step) {
      const FormatId number = kNumbers[dice.Below(step / 10 < seed % 7 ? 3 : 6)];
      const Stretch at = dice.In(plain.size());
      const std::size_t count = dice.Below(80);
      switch (dice.Below(3)) {
        case 0:
          numbers.Append(count, number);
          plain.insert(plain.end(), count, number);
          break;
        case 1:
          numbers.Fill(at.first, at.last, number);
          std::fill_n(plain.begin() + std::ptrdiff_t(at.first), at.last - at.first, number);
          break;
        default:
          numbers.Replace(at.first, at.last, FormatNumbers(count, number));
          PutInPlace(plain, at, std::vector<FormatId>(count, number));
      }
      ASSERT_EQ(numbers.size(), plain.size());
      for (std::size_t i = 0; i < plain.size(); ++i) ASSERT_EQ(numbers[i], plain[i]) << i;
      const Stretch asked = dice.In(plain.size());
      if (asked.first == asked.last) continue;
      std::size_t end = asked.first;
      while (end < asked.last && plain[end] == plain[asked.first]) ++end;
      ASSERT_EQ(numbers.EndOfStretch(asked.first, asked.last), end);
    }
  }
}

// Characters of a few bytes, of one too many for the array, and of many; some typed.
TEST(OriginList, AgreesWithAPlainVector) {
  constexpr std::uint32_t kLengths[] = {1, 4, 62, 63, 64, 5000};
  for (unsigned seed = 0; seed < 40; ++seed) {
    Dice dice(seed);
    OriginList origins;
    std::vector<Origin> plain;
    Offset reached = 0;
    for (int i = 0; i < 60; ++i) {
      reached += static_cast<Offset>(dice.Below(3));
      if (dice.Below(3) == 0) {
        origins.AppendBytes(2, reached);
        plain.push_back({reached, 1});
        plain.push_back({reached + 1, 1});
      } else {
        plain.push_back({reached, kLengths[dice.Below(6)], Origin::Kind(dice.Below(4))});
        origins.Append(plain.back());
        if (dice.Below(5) == 0) {
          plain.back().length += kLengths[dice.Below(6)];
          origins.ExtendLast(plain.back().end());
        }
      }
      reached = plain.back().end();
    }
    for (int step = 0; step < 20; ++step) {
      ASSERT_EQ(origins.size(), plain.size());
      for (std::size_t i = 0; i < plain.size(); ++i) ASSERT_EQ(origins[i], plain[i]) << i;
      const auto offset = static_cast<Offset>(dice.Below(reached));
      const std::size_t from = dice.Below(plain.size() + 1);
      std::size_t behind = from;
      while (behind < plain.size() && plain[behind].begin <= offset) ++behind;
      ASSERT_EQ(origins.FirstBehind(offset, from), behind);
      // Typed in place of some, which come back later.
      const Stretch at = dice.In(plain.size());
      const std::vector<Origin> gone(plain.begin() + std::ptrdiff_t(at.first),
                                     plain.begin() + std::ptrdiff_t(at.last));
      const Offset place = at.first < plain.size() ? plain[at.first].begin : reached;
      OriginList typed;
      typed.Append({place});
      origins.Replace(at.first, at.last, typed);
      ASSERT_TRUE(origins.HasTyped());
      ASSERT_TRUE(origins.IsTyped(at.first));
      OriginList back;
      for (const Origin& origin : gone) back.Append(origin);
      origins.Replace(at.first, at.first + 1, back);
      ASSERT_FALSE(origins.HasTyped());
      // Some of them are gone for good.
      const Stretch cut = dice.In(plain.size());
      if (cut.last - cut.first > 3) continue;
      origins.Replace(cut.first, cut.last, {});
      PutInPlace(plain, cut, {});
    }
  }
}

}  // namespace
}  // namespace quill
