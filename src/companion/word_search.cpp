#include "companion/word_search.h"

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <unordered_set>

#include "companion/chains.h"

namespace quill::companion {
namespace {

using Word = std::u32string_view;

// A text that needs more was made to be searched for ever.
constexpr std::size_t kMostComparisons = 100'000'000;
constexpr std::size_t kMostPlaces = 8'000'000;
constexpr std::size_t kMostSteps = 4'000'000;
constexpr std::size_t kMostLinks = 1'000'000;

// Finds all places of many words in one pass, by their first two characters.
class Finder {
 public:
  explicit Finder(const std::vector<Word>& words) : words_(words), places_(words.size()) {
    for (std::size_t i = 0; i < words.size(); ++i) {
      const std::uint64_t key = KeyOf(words[i]);
      byHead_[key].push_back(i);
      heads_.set(HashOf(key));
    }
  }

  // Whether all places were found within the limits.
  bool Search(Word text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      const Word rest = text.substr(at);
      if (!Look(rest, KeyOf(rest), at) || !Look(rest, KeyOf(rest.substr(0, 1)), at)) return false;
    }
    return true;
  }

  const std::vector<Position>& PlacesOf(std::size_t word) const { return places_[word]; }

 private:
  static std::uint64_t KeyOf(Word word) {
    return std::uint64_t{word[0]} << 32U | (word.size() > 1 ? word[1] : 0xFFFFFFFFU);
  }
  static std::size_t HashOf(std::uint64_t key) { return (key * 0x9E3779B97F4A7C15U) >> 48U; }

  bool Look(Word rest, std::uint64_t key, std::size_t at) {
    if (!heads_[HashOf(key)]) return true;
    const auto found = byHead_.find(key);
    if (found == byHead_.end()) return true;
    for (const std::size_t i : found->second) {
      comparisons_ += words_[i].size();
      if (!rest.starts_with(words_[i])) continue;
      if (!places_[i].empty() && places_[i].back() == static_cast<Position>(at)) continue;
      places_[i].push_back(static_cast<Position>(at));
      ++found_;
    }
    return comparisons_ <= kMostComparisons && found_ <= kMostPlaces;
  }

  const std::vector<Word>& words_;
  std::vector<std::vector<Position>> places_;
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> byHead_;
  std::bitset<65536> heads_;
  std::size_t comparisons_ = 0;
  std::size_t found_ = 0;
};

// A word to lay out, with all its places in order.
struct Laid {
  Position length;
  const std::vector<Position>* places;
};

constexpr Position kNowhere = std::numeric_limits<Position>::max();

// The first place that begins at or after a position.
Position NextPlace(const Laid& word, Position from) {
  const auto place = std::lower_bound(word.places->begin(), word.places->end(), from);
  return place == word.places->end() ? kNowhere : *place;
}

// The last place that ends at or before a position; -1 for none.
Position LastPlace(const Laid& word, Position end) {
  const auto behind = std::upper_bound(word.places->begin(), word.places->end(), end - word.length);
  return behind == word.places->begin() ? -1 : *(behind - 1);
}

// Lays out words, none of them raised, in a text.
//
// For every number of words left out, from 0 up to what is needed, and every number of words from
// the start (or from the end): how far into the text the rest of them reach at least.
class Layout {
 public:
  explicit Layout(const std::vector<Laid>& words, Position length)
      : words_(words), length_(length) {
    do {
      if ((ends_.size() + 1) * (words.size() + 1) > kMostSteps) return;
      ends_.push_back(NextEnds());
    } while (ends_.back().back() == kNowhere);
    for (std::size_t left = 0; left < ends_.size(); ++left) begins_.push_back(NextBegins());
    found_ = true;
  }

  bool Found() const { return found_; }

  // The only possible place of a word, if there is just one.
  std::optional<Position> PlaceOf(std::size_t i) const {
    const std::size_t most = ends_.size() - 1;  // words left out in total
    Position first = kNowhere;
    Position last = -1;
    for (std::size_t before = 0; before <= most; ++before) {
      if (ends_[before][i] == kNowhere) continue;
      const bool canStayOut =
          before < most && ends_[before][i] <= begins_[most - 1 - before][i + 1];
      if (canStayOut) return std::nullopt;
      const Position room = begins_[most - before][i + 1];
      const Position earliest = NextPlace(words_[i], ends_[before][i]);
      if (earliest == kNowhere || earliest + words_[i].length > room) continue;
      first = std::min(first, earliest);
      last = std::max(last, LastPlace(words_[i], room));
    }
    return first == last ? std::optional(first) : std::nullopt;
  }

 private:
  // ends[i]: where the first i words end at the earliest, with one more of them left out than
  // before.
  std::vector<Position> NextEnds() const {
    std::vector<Position> ends(words_.size() + 1, 0);
    for (std::size_t i = 0; i < words_.size(); ++i) {
      const Position place = ends[i] == kNowhere ? kNowhere : NextPlace(words_[i], ends[i]);
      ends[i + 1] = place == kNowhere ? kNowhere : place + words_[i].length;
      if (!ends_.empty()) ends[i + 1] = std::min(ends[i + 1], ends_.back()[i]);
    }
    return ends;
  }

  // begins[i]: where the words from i on begin at the latest; -1 if they do not fit.
  std::vector<Position> NextBegins() const {
    std::vector<Position> begins(words_.size() + 1, length_);
    for (std::size_t i = words_.size(); i-- > 0;) {
      begins[i] = begins[i + 1] < 0 ? -1 : LastPlace(words_[i], begins[i + 1]);
      if (!begins_.empty()) begins[i] = std::max(begins[i], begins_.back()[i + 1]);
    }
    return begins;
  }

  const std::vector<Laid>& words_;
  Position length_;
  bool found_ = false;
  std::vector<std::vector<Position>> ends_;
  std::vector<std::vector<Position>> begins_;
};

// The distinct words, and for each word which of them it is.
struct Vocabulary {
  std::vector<Word> words;
  std::vector<std::size_t> numbers;
};

Vocabulary VocabularyOf(const std::vector<Word>& all) {
  Vocabulary vocabulary;
  std::unordered_map<Word, std::size_t> known;
  for (const Word word : all) {
    const auto [entry, isNew] = known.try_emplace(word, vocabulary.words.size());
    if (isNew) vocabulary.words.push_back(word);
    vocabulary.numbers.push_back(entry->second);
  }
  return vocabulary;
}

// The stretches that are spelled like one of the words.
std::vector<Range> MarkedStretches(Word text, const Vocabulary& vocabulary,
                                   const std::vector<Range>& raised) {
  const std::unordered_set<Word> words(vocabulary.words.begin(), vocabulary.words.end());
  std::vector<Range> marked;
  for (const Range& stretch : raised) {
    const Word word = text.substr(static_cast<std::size_t>(stretch.begin),
                                  static_cast<std::size_t>(stretch.Length()));
    if (words.contains(word)) marked.push_back(stretch);
  }
  return marked;
}

using Places = std::vector<std::optional<Position>>;

Places PlaceUnmarked(Word text, const std::vector<Laid>& words) {
  Places places(words.size());
  const Layout layout(words, static_cast<Position>(text.size()));
  if (!layout.Found()) return places;
  for (std::size_t i = 0; i < words.size(); ++i) places[i] = layout.PlaceOf(i);
  return places;
}

// A marked place weighs more than all unmarked ones together can.
Places PlaceByWeight(Word text, const std::vector<Laid>& words, const std::vector<Range>& marked) {
  const auto isMarked = [&](Range place) {
    const auto at = std::lower_bound(
        marked.begin(), marked.end(), place.begin,
        [](const Range& stretch, Position begin) { return stretch.begin < begin; });
    return at != marked.end() && *at == place;
  };
  std::vector<Link> links;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (links.size() + words[i].places->size() > kMostLinks) return Places(words.size());
    for (const Position begin : *words[i].places) {
      const Range place{begin, begin + words[i].length};
      const auto heavy = static_cast<std::int64_t>(words.size() + 1);
      links.push_back({i, place, isMarked(place) ? heavy : 1});
    }
  }
  Places places(words.size());
  for (const std::size_t link : CommonLinks(links, static_cast<Position>(text.size()))) {
    places[links[link].element] = links[link].place.begin;
  }
  return places;
}

}  // namespace

std::vector<std::optional<Position>> PlaceWords(std::u32string_view text,
                                                const std::vector<std::u32string_view>& words,
                                                const std::vector<Range>& raised) {
  Places places(words.size());
  const Vocabulary vocabulary = VocabularyOf(words);
  Finder finder(vocabulary.words);
  if (!finder.Search(text)) return places;
  std::vector<Laid> laid;
  std::vector<std::size_t> which;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::vector<Position>& all = finder.PlacesOf(vocabulary.numbers[i]);
    // A word without a place is left out in every layout.
    if (all.empty()) continue;
    laid.push_back({static_cast<Position>(words[i].size()), &all});
    which.push_back(i);
  }
  const std::vector<Range> marked = MarkedStretches(text, vocabulary, raised);
  const Places found =
      marked.empty() ? PlaceUnmarked(text, laid) : PlaceByWeight(text, laid, marked);
  for (std::size_t i = 0; i < laid.size(); ++i) places[which[i]] = found[i];
  return places;
}

}  // namespace quill::companion
