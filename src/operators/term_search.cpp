#include "operators/term_search.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace quill {
namespace {

constexpr std::uint32_t kNoTerm = std::numeric_limits<std::uint32_t>::max();
// In all rows together: eight megabytes, about the size of a processor's cache.
constexpr std::size_t kMostMoves = std::size_t{1} << 21U;

// The sorted terms that share the prefix of a state.
struct Bundle {
  std::size_t first = 0;
  std::size_t last = 0;
  std::size_t length = 0;  // of that prefix
};

}  // namespace

TermSearch::TermSearch(const std::vector<std::u32string>& terms) {
  for (const std::u32string& term : terms) {
    for (const char32_t character : term) alphabet_.Add(character);
    lengths_.push_back(static_cast<Position>(term.size()));
  }
  Grow(terms);
  Connect();
}

TermSearch::State TermSearch::AddState(CharacterClass entry) {
  entry_.push_back(entry);
  term_.push_back(kNoTerm);
  return static_cast<State>(entry_.size() - 1);
}

// Creates the states level by level: a bundle of sorted terms splits by the next character.
void TermSearch::Grow(const std::vector<std::u32string>& terms) {
  std::vector<std::uint32_t> sorted(terms.size());
  std::iota(sorted.begin(), sorted.end(), 0U);
  std::sort(sorted.begin(), sorted.end(),
            [&](std::uint32_t a, std::uint32_t b) { return terms[a] < terms[b]; });
  std::vector<Bundle> bundles{{0, sorted.size(), 0}};
  AddState(kForeign);
  for (State state = kRoot; state < bundles.size(); ++state) {
    auto [at, last, length] = bundles[state];
    firstChild_.push_back(static_cast<State>(entry_.size()));
    // A term that ends here is the first of those with this prefix.
    if (at < last && terms[sorted[at]].size() == length) {
      if (length > 0) term_[state] = sorted[at];
      ++at;
    }
    while (at < last) {
      const char32_t next = terms[sorted[at]][length];
      std::size_t end = at + 1;
      while (end < last && terms[sorted[end]][length] == next) ++end;
      AddState(alphabet_.Of(next));
      bundles.push_back({at, end, length + 1});
      at = end;
    }
  }
  firstChild_.push_back(static_cast<State>(entry_.size()));
}

// Fills in fallbacks, reports and rows, each from those of shorter prefixes, which come first.
void TermSearch::Connect() {
  const std::size_t states = entry_.size();
  width_ = alphabet_.Count();
  rows_ = static_cast<State>(std::clamp<std::size_t>(kMostMoves / width_, 1, states));
  fallback_.assign(states, kRoot);
  report_.assign(states, kRoot);
  moves_.assign(rows_ * width_, MoveTo(kRoot));
  for (State state = kRoot; state < states; ++state) {
    for (State child = firstChild_[state]; child < firstChild_[state + 1]; ++child) {
      if (state != kRoot) fallback_[child] = Target(Step(fallback_[state], entry_[child]));
      report_[child] = term_[child] != kNoTerm ? child : report_[fallback_[child]];
    }
    if (HasRow(state)) FillRow(state);
  }
}

void TermSearch::FillRow(State state) {
  Move* const row = &moves_[state * width_];
  if (state != kRoot) std::copy_n(&moves_[fallback_[state] * width_], width_, row);
  for (State child = firstChild_[state]; child < firstChild_[state + 1]; ++child) {
    row[entry_[child]] = MoveTo(child);
  }
}

// kRoot if there is none.
TermSearch::State TermSearch::Child(State state, CharacterClass next) const {
  const auto first = entry_.begin() + firstChild_[state];
  const auto last = entry_.begin() + firstChild_[state + 1];
  const auto found = std::find(first, last, next);
  return found == last ? kRoot : static_cast<State>(found - entry_.begin());
}

TermSearch::Move TermSearch::Step(State state, CharacterClass next) const {
  while (!HasRow(state)) {
    const State child = Child(state, next);
    if (child != kRoot) return MoveTo(child);
    state = fallback_[state];
  }
  return moves_[state * width_ + next];
}

std::vector<TermHit> TermSearch::Hits(std::u32string_view text) const {
  std::vector<TermHit> hits;
  const auto length = static_cast<Position>(text.size());
  // Where the search for each term resumes.
  std::vector<Position> free(lengths_.size(), 0);
  Move move = MoveTo(kRoot);
  for (Position at = 0; at < length; ++at) {
    move = Step(Target(move), alphabet_.Of(text[static_cast<std::size_t>(at)]));
    if (!Reports(move)) continue;
    for (State end = report_[Target(move)]; end != kRoot; end = report_[fallback_[end]]) {
      const std::uint32_t term = term_[end];
      const Position begin = at + 1 - lengths_[term];
      if (begin < free[term] || free[term] >= length - 1) continue;
      free[term] = at + 1;
      hits.push_back({begin, term});
    }
  }
  return hits;
}

Position TermSearch::Next(std::u32string_view text, Position from) const {
  Move move = MoveTo(kRoot);
  for (auto at = static_cast<std::size_t>(from); at < text.size(); ++at) {
    move = Step(Target(move), alphabet_.Of(text[at]));
    if (!Reports(move)) continue;
    return static_cast<Position>(at) + 1 - lengths_[term_[report_[Target(move)]]];
  }
  return kNone;
}

}  // namespace quill
