// The search for where tags belong, against trying every way to place them.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/alignment.h"
#include "companion/word_search.h"
#include "support/random_user.h"

namespace quill::companion {
namespace {

using test::Dice;
// For each element its place, or -1.
using Way = std::vector<Position>;

// Collects the ways that place most elements, and tells what they agree about.
class BestWays {
 public:
  void Add(const Way& way) {
    const auto placed = std::count_if(way.begin(), way.end(), [](Position p) { return p >= 0; });
    if (placed < most_) return;
    if (placed > most_) ways_.clear();
    most_ = placed;
    ways_.push_back(way);
  }

  Way Agreed() const {
    Way agreed = ways_.front();
    for (const Way& way : ways_) {
      for (std::size_t i = 0; i < way.size(); ++i) {
        if (way[i] != agreed[i]) agreed[i] = -1;
      }
    }
    return agreed;
  }

 private:
  std::ptrdiff_t most_ = 0;
  std::vector<Way> ways_ = {};
};

// Tries all ways to place elements in order: places(i) are those of element i, each of a length.
Way TryAll(std::size_t count, const std::function<std::vector<Position>(std::size_t)>& places,
           const std::function<Position(std::size_t)>& length) {
  BestWays best;
  Way way(count, -1);
  const std::function<void(std::size_t, Position)> place = [&](std::size_t i, Position from) {
    if (i == count) return best.Add(way);
    place(i + 1, from);
    for (const Position at : places(i)) {
      if (at < from) continue;
      way[i] = at;
      place(i + 1, at + length(i));
      way[i] = -1;
    }
  };
  place(0, 0);
  return best.Agreed();
}

template <class Number>
Way AsWay(const std::vector<std::optional<Number>>& places) {
  Way way;
  for (const auto& place : places) way.push_back(place ? static_cast<Position>(*place) : -1);
  return way;
}

TEST(CompanionPlacement, PairsWhatAllLongestPairingsPair) {
  Dice dice(1);
  for (int round = 0; round < 4000; ++round) {
    std::vector<std::uint32_t> left(static_cast<std::size_t>(dice.Below(7)));
    std::vector<std::uint32_t> right(static_cast<std::size_t>(dice.Below(7)));
    for (auto* sequence : {&left, &right}) {
      for (std::uint32_t& symbol : *sequence) symbol = static_cast<std::uint32_t>(dice.Below(4));
    }
    const auto places = [&](std::size_t i) {
      std::vector<Position> all;
      for (std::size_t j = 0; j < right.size(); ++j) {
        if (right[j] == left[i]) all.push_back(static_cast<Position>(j));
      }
      return all;
    };
    EXPECT_EQ(AsWay(CommonPairs(left, right)),
              TryAll(left.size(), places, [](std::size_t) { return Position{1}; }))
        << "round " << round;
  }
}

// Longer than a word of bits: an element stands in both sequences once, and all others shift.
TEST(CompanionPlacement, PairsLongSequences) {
  std::vector<std::uint32_t> left(1000);
  for (std::size_t i = 0; i < left.size(); ++i) left[i] = static_cast<std::uint32_t>(i);
  std::vector<std::uint32_t> right(left.begin() + 150, left.end());
  right.insert(right.begin() + 300, 70, 5000);
  const auto pairs = CommonPairs(left, right);
  for (std::size_t i = 0; i < left.size(); ++i) {
    const std::size_t shifted = i - 150 + (i < 450 ? 0 : 70);
    EXPECT_EQ(pairs[i], i < 150 ? std::nullopt : std::optional(shifted)) << i;
  }
}

TEST(CompanionPlacement, PlacesWordsWhereAllFullestWaysDo) {
  Dice dice(2);
  const auto word = [&](int length) {
    std::u32string text;
    while (length-- > 0) text += dice.Percent(60) ? U'a' : U'b';
    return text;
  };
  for (int round = 0; round < 4000; ++round) {
    const std::u32string text = word(dice.Below(9));
    std::vector<std::u32string> words(static_cast<std::size_t>(dice.Below(5)));
    for (std::u32string& one : words) one = word(1 + dice.Below(3));
    const auto places = [&](std::size_t i) {
      std::vector<Position> all;
      for (std::size_t at = text.find(words[i]); at != text.npos; at = text.find(words[i], at + 1))
        all.push_back(static_cast<Position>(at));
      return all;
    };
    const auto length = [&](std::size_t i) { return static_cast<Position>(words[i].size()); };
    EXPECT_EQ(AsWay(PlaceWords(text, {words.begin(), words.end()})),
              TryAll(words.size(), places, length))
        << "round " << round;
  }
}

}  // namespace
}  // namespace quill::companion
