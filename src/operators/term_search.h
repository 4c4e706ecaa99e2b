// Finds many terms in a text in one pass, whatever their case.
//
// An automaton over the folded alphabet of the terms (Aho and Corasick, 1975): a state is the
// longest beginning of a term that the text read so far ends in, so that every character is looked
// at once, however many terms there are. States are numbered level by level. The shallow ones,
// where a text spends its time, have a full row of successors; the deep ones keep their branches
// alone and fall back to shorter beginnings.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "operators/character_classes.h"
#include "text/document.h"

namespace quill {

struct TermHit {
  Position begin = 0;
  std::uint32_t term = 0;  // index into the list of terms
};

class TermSearch {
 public:
  static constexpr Position kNone = -1;

  // The terms must be folded (FoldCase) and distinct. An empty term never occurs.
  explicit TermSearch(const std::vector<std::u32string>& terms);

  // For every term, its hits as one finds them who goes on behind each: hits of one term don't
  // overlap. Nobody goes on from the last character: a hit is left out where the one before it, or
  // the text's beginning, leaves no more than that. In the order of the hits' ends.
  std::vector<TermHit> Hits(std::u32string_view text) const;

  // Where the first occurrence at or behind `from` begins; kNone where there is none. For the one
  // term of a list of one.
  Position Next(std::u32string_view text, Position from) const;

 private:
  using State = std::uint32_t;
  static constexpr State kRoot = 0;
  // Where a character leads: a state, and in the lowest bit whether a term ends there. So a search
  // reads one number a character, and that is what it waits for.
  using Move = std::uint32_t;
  static State Target(Move move) { return move >> 1U; }
  static bool Reports(Move move) { return (move & 1U) != 0; }

  void Grow(const std::vector<std::u32string>& terms);
  void Connect();
  State AddState(CharacterClass entry);
  void FillRow(State state);
  State Child(State state, CharacterClass next) const;
  Move MoveTo(State state) const { return state << 1U | (report_[state] != kRoot ? 1U : 0U); }
  Move Step(State state, CharacterClass next) const;
  bool HasRow(State state) const { return state < rows_; }

  CharacterClasses alphabet_;
  std::size_t width_ = 0;              // of a row
  State rows_ = 0;                     // how many states have a row
  std::vector<Move> moves_;            // the rows, by the class of the next character
  std::vector<State> firstChild_;      // the children of a state follow one another; one entry more
  std::vector<CharacterClass> entry_;  // by which character a state is entered
  std::vector<State> fallback_;        // the longest proper ending that is a beginning too
  std::vector<State> report_;          // the state itself or the longest ending that is a term
  std::vector<std::uint32_t> term_;    // the term that a state completes
  std::vector<Position> lengths_;      // of the terms
};

}  // namespace quill
