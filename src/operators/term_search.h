// Finds many terms in a text in one pass, ignoring case.
//
// An automaton over the folded alphabet of the terms (Aho and Corasick, 1975): a state is the
// longest prefix of a term that is a suffix of the text read so far, so each character is read
// once, however many terms there are. States are numbered level by level. The shallow ones, where a
// search spends its time, have a full row of successors; the deep ones store only their own
// branches and fall back to shorter prefixes.
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

  // The terms must be folded (FoldCase) and distinct. An empty term has no hits.
  explicit TermSearch(const std::vector<std::u32string>& terms);

  // Non-overlapping hits per term, left to right, ordered by where they end. No search starts at
  // the last character.
  std::vector<TermHit> Hits(std::u32string_view text) const;

  // Where the first hit at or after `from` begins, or kNone. Only for a list of one term.
  Position Next(std::u32string_view text, Position from) const;

 private:
  using State = std::uint32_t;
  static constexpr State kRoot = 0;
  // Where a character leads: a state, and in the lowest bit whether a term ends there. Reading one
  // number per character is what limits the speed of a search.
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
  State rows_ = 0;                     // the number of states that have a row
  std::vector<Move> moves_;            // the rows, by the class of the next character
  std::vector<State> firstChild_;      // children are consecutive; one extra entry at the end
  std::vector<CharacterClass> entry_;  // the character that enters each state
  std::vector<State> fallback_;        // the longest proper suffix that is also a prefix
  std::vector<State> report_;          // the state itself, or its longest suffix that is a term
  std::vector<std::uint32_t> term_;    // the term that each state completes
  std::vector<Position> lengths_;      // of the terms
};

}  // namespace quill
