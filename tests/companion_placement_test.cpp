// The search for where tags belong, compared with trying every way to place them.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>
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

// Where an element can be; a marked place counts for more than all others.
struct Choice {
  Range place;
  bool marked = false;
};

// Collects the ways that place the most elements, and returns what they agree on.
class BestWays {
 public:
  void Add(const Way& way, int weight) {
    if (weight < most_) return;
    if (weight > most_) ways_.clear();
    most_ = weight;
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
  int most_ = 0;
  std::vector<Way> ways_ = {};
};

// Tries all ways to place elements in their order, each at one of its choices.
Way TryAll(const std::vector<std::vector<Choice>>& choices) {
  BestWays best;
  Way way(choices.size(), -1);
  const std::function<void(std::size_t, Position, int)> place = [&](std::size_t i, Position from,
                                                                    int weight) {
    if (i == choices.size()) return best.Add(way, weight);
    place(i + 1, from, weight);
    for (const Choice& choice : choices[i]) {
      if (choice.place.begin < from) continue;
      way[i] = choice.place.begin;
      place(i + 1, choice.place.end, weight + (choice.marked ? 100 : 1));
      way[i] = -1;
    }
  };
  place(0, 0, 0);
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
    std::vector<std::vector<Choice>> choices(left.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
      for (Position j = 0; j < static_cast<Position>(right.size()); ++j) {
        if (right[static_cast<std::size_t>(j)] == left[i]) choices[i].push_back({{j, j + 1}});
      }
    }
    EXPECT_EQ(AsWay(CommonPairs(left, right)), TryAll(choices)) << "round " << round;
  }
}

// Longer than a word of bits: one element occurs once in both sequences, and all others shift.
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

std::vector<Range> RaisedAtRandom(Dice& dice, const std::u32string& text) {
  std::vector<Range> raised;
  const int chance = 30 * dice.Below(3);
  for (Position at = 0; at < static_cast<Position>(text.size()); ++at) {
    const Position end = std::min(at + 1 + dice.Below(2), static_cast<Position>(text.size()));
    if (!dice.Percent(chance)) continue;
    raised.push_back({at, end});
    at = end;
  }
  return raised;
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
    const std::vector<Range> raised = RaisedAtRandom(dice, text);
    std::vector<std::vector<Choice>> choices(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
      for (std::size_t at = text.find(words[i]); at != text.npos;
           at = text.find(words[i], at + 1)) {
        const auto begin = static_cast<Position>(at);
        const Range place{begin, begin + static_cast<Position>(words[i].size())};
        const bool marked = std::find(raised.begin(), raised.end(), place) != raised.end();
        choices[i].push_back({place, marked});
      }
    }
    EXPECT_EQ(AsWay(PlaceWords(text, {words.begin(), words.end()}, raised)), TryAll(choices))
        << "round " << round;
  }
}

}  // namespace
}  // namespace quill::companion
