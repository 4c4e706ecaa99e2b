// Searching for more terms than the automaton has room for full rows.
#include <gtest/gtest.h>

#include <random>
#include <unordered_map>

#include "operators/term_search.h"

namespace quill::test {
namespace {

// Looks every stretch of a term's length up.
std::vector<TermHit> SlowHits(const std::vector<std::u32string>& terms, std::u32string_view text,
                              std::size_t shortest, std::size_t longest) {
  std::unordered_map<std::u32string, std::uint32_t> numbers;
  for (std::size_t i = 0; i < terms.size(); ++i) {
    numbers.emplace(terms[i], static_cast<std::uint32_t>(i));
  }
  std::vector<Position> free(terms.size(), 0);
  std::vector<TermHit> hits;
  for (std::size_t end = shortest; end <= text.size(); ++end) {
    for (std::size_t length = std::min(longest, end); length >= shortest; --length) {
      const auto found = numbers.find(std::u32string(text.substr(end - length, length)));
      const auto begin = static_cast<Position>(end - length);
      if (found == numbers.end() || begin < free[found->second]) continue;
      free[found->second] = static_cast<Position>(end);
      hits.push_back({begin, found->second});
    }
  }
  return hits;
}

TEST(TermSearch, FindsTermsOfDeepStatesToo) {
  std::mt19937 random(3);
  constexpr std::size_t kShortest = 2;
  constexpr std::size_t kLongest = 60;
  // Two letters lead deep; the first term's letters make the rows wide, so that few states have
  // one.
  std::vector<std::u32string> terms{U""};
  for (char32_t c = 0x4E00; c < 0x4E00 + 4000; ++c) terms[0] += c;
  for (std::size_t i = 0; i < 400; ++i) {
    std::u32string term;
    for (std::size_t length = kShortest + random() % (kLongest - kShortest); length > 0; --length) {
      term += random() % 4 == 0 ? U'b' : U'a';
    }
    if (std::find(terms.begin(), terms.end(), term) == terms.end()) terms.push_back(term);
  }
  std::u32string text;
  while (text.size() < 20'000) {
    const std::u32string& term = terms[1 + random() % (terms.size() - 1)];
    text += term.substr(0, 1 + random() % term.size());
  }
  const std::vector<TermHit> hits = TermSearch(terms).Hits(text);
  const std::vector<TermHit> expected = SlowHits(terms, text, kShortest, kLongest);
  ASSERT_EQ(hits.size(), expected.size());
  for (std::size_t i = 0; i < hits.size(); ++i) {
    ASSERT_EQ(hits[i].begin, expected[i].begin);
    ASSERT_EQ(hits[i].term, expected[i].term);
  }
  EXPECT_GT(hits.size(), 1000U);
}

TEST(TermSearch, KnowsAllCasesAndNoMore) {
  const std::u32string text = U"STRASSE Straße \u212Aelvin ẞ ſ \U00010400";
  const struct {
    std::u32string term;  // folded
    std::vector<Position> begins;
  } table[] = {
      {U"straße", {8}},         {U"strasse", {0}},     {U"kelvin", {15}}, {U"ß", {12, 22}},
      {U"s", {0, 4, 5, 8, 24}}, {U"\U00010428", {26}}, {U"", {}},         {U"x", {}},
  };
  for (const auto& row : table) {
    std::vector<Position> begins;
    for (const TermHit& hit : TermSearch({row.term}).Hits(text)) begins.push_back(hit.begin);
    EXPECT_EQ(begins, row.begins);
  }
}

}  // namespace
}  // namespace quill::test
