// Tags after a text was edited the way a user edits it, with the place of every tag known.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "companion/placement.h"
#include "support/random_user.h"
#include "support/workbench.h"
#include "text/numbers.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

using test::Dice;

// No word is both tagged and untagged.
constexpr const char32_t* kPlain[] = {U"the ", U"ferry ",      U"left, ",   U"and ",
                                      U"a ",   U"\U0001F6A2 ", U"e\u0301\t"};
constexpr const char32_t* kTagged[] = {U"THEN", U"NOW", U"NEXT DAY", U"THEN", U"A\U00010330"};

class EditedText : public test::Workbench {
 public:
  explicit EditedText(std::uint32_t seed) : dice_(seed) {
    std::u32string characters;
    const int terms = 3 + dice_.Below(12);
    for (int i = 0; i < terms; ++i) {
      for (int words = 1 + dice_.Below(3); words > 0; --words) characters += dice_.OneOf(kPlain);
      const std::u32string term = dice_.OneOf(kTagged);
      tags_.push_back({{Length(characters), Length(characters + term)}, term, true});
      characters += term;
    }
    characters += U" end.";
    ShowText(characters, std::string(characters.size(), '.'));
    for (std::size_t i = 0; i < tags_.size(); ++i) Tagged(i);
    for (Position at = 0; at < text.Length(); ++at) numbers_.push_back(next_++);
    list_ = ParseTagList("list", lines_);
  }

  // Typing and deleting anywhere but inside a term.
  void EditPlainWords() {
    const Position at = dice_.Below(static_cast<int>(text.Length()) + 1);
    const Position length = dice_.Percent(50) ? dice_.Below(5) : 0;
    const Range range{at, std::min(at + length, text.Length())};
    if (Hits(range)) return;
    program.Select(range.begin, range.Length());
    if (dice_.Percent(30)) {
      program.DeleteInText(range);
      Follow(range, 0);
    } else {
      const std::u32string typed = dice_.OneOf(kPlain);
      program.TypeInText(typed);
      Follow(range, Length(typed));
    }
  }

  void DeleteTerm() {
    const std::optional<Range> place = PlaceOf(static_cast<std::size_t>(AnyTag()));
    if (!place) return;
    program.Select(place->begin, place->Length());
    program.DeleteInText(*place);
    Follow(*place, 0);
  }

  // Marks a term again, with another word in the box.
  void CorrectTerm() {
    const std::optional<Range> place = PlaceOf(static_cast<std::size_t>(AnyTag()));
    if (!place) return;
    const std::u32string term = U"correction " + DecimalText(next_);
    program.Select(place->begin, place->Length());
    program.Click(form.DefAMarker);
    program.Enter(form.AMarkedString, term);
    program.Select(place->begin, place->Length());
    program.Click(form.AMarkSet);
    Follow(*place, Length(term));
  }

  // Removes the marks from a term.
  void Unmark() {
    const std::optional<Range> place = PlaceOf(static_cast<std::size_t>(AnyTag()));
    if (!place) return;
    text.SelStart = place->begin;
    text.SelLength = place->Length();
    text.SelCharOffset = 0;
  }

  void Check(bool allAreThere) {
    const Placement placement = Place(TextOf(text.Doc()), list_);
    for (std::size_t i = 0; i < tags_.size(); ++i) {
      const std::optional<Range> place = PlaceOf(i);
      if (placement.tags[i]) {
        EXPECT_EQ(placement.tags[i], place)
            << ToUtf8(tags_[i].term) << " in " << ToUtf8(text.Text());
      } else {
        EXPECT_FALSE(allAreThere) << ToUtf8(tags_[i].term) << " in " << ToUtf8(text.Text());
      }
    }
  }

 private:
  struct Known {
    Range first;  // where it was tagged
    std::u32string term;
    bool isA;
  };

  static Position Length(const std::u32string& characters) {
    return static_cast<Position>(characters.size());
  }
  int AnyTag() { return dice_.Below(static_cast<int>(tags_.size())); }

  void Tagged(std::size_t i) {
    const Range span = tags_[i].first;
    text.SelStart = span.begin;
    text.SelLength = span.Length();
    text.SelCharOffset = 25;
    text.SelColor = dice_.Percent(50) ? RGB(0, 0, 255) : RGB(255, 0, 0);
    lines_ +=
        ToUtf8(ComposeTag(TagFields{U"1", DecimalText(static_cast<double>(span.begin + 1)),
                                    DecimalText(static_cast<double>(span.end)), tags_[i].term, U"S",
                                    U"U", U"", U"", U"", U"", U"", U"", U"", U"", U""})) +
        "\r\n";
  }

  // Characters keep their numbers: those of a term are the first ones at its place.
  void Follow(Range range, Position typed) {
    const auto begin = numbers_.begin() + range.begin;
    const auto at = numbers_.erase(begin, begin + range.Length());
    std::vector<int> fresh;
    while (typed-- > 0) fresh.push_back(next_++);
    numbers_.insert(at, fresh.begin(), fresh.end());
  }

  // The place of a term, if all its characters are still together.
  std::optional<Range> PlaceOf(std::size_t i) const {
    const Range first = tags_[i].first;
    std::vector<int> term;
    for (Position at = first.begin; at < first.end; ++at) term.push_back(static_cast<int>(at));
    const auto found = std::search(numbers_.begin(), numbers_.end(), term.begin(), term.end());
    if (found == numbers_.end()) return std::nullopt;
    const Position begin = found - numbers_.begin();
    return Range{begin, begin + first.Length()};
  }

  bool Hits(Range range) const {
    for (std::size_t i = 0; i < tags_.size(); ++i) {
      const std::optional<Range> place = PlaceOf(i);
      if (place && range.begin < place->end && place->begin < range.end) return true;
      // A caret in the middle of a term splits it.
      if (place && range.Length() == 0 && place->begin < range.begin && range.begin < place->end) {
        return true;
      }
    }
    return false;
  }

  Dice dice_;
  std::vector<Known> tags_;
  std::string lines_;
  TagList list_;
  std::vector<int> numbers_;
  int next_ = 0;
};

TEST(CompanionRepair, MovesEveryTagWithItsTerm) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    SCOPED_TRACE(seed);
    EditedText edited(seed);
    for (int edits = 0; edits < 8; ++edits) edited.EditPlainWords();
    edited.Check(true);
    edited.Unmark();
    edited.Check(true);
  }
}

TEST(CompanionRepair, MovesNoTagToAWrongPlace) {
  for (std::uint32_t seed = 1000; seed < 1400; ++seed) {
    SCOPED_TRACE(seed);
    EditedText edited(seed);
    for (int edits = 0; edits < 3; ++edits) {
      edited.EditPlainWords();
      edited.DeleteTerm();
      edited.EditPlainWords();
      edited.CorrectTerm();
    }
    edited.Check(false);
  }
}

}  // namespace
}  // namespace quill::companion
