#include "text/case_folding.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <utility>

namespace quill {
namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

using Folding = std::pair<char32_t, char32_t>;  // the folded character, and one that folds to it

// The characters that do not fold to themselves, some 1,500, sorted by the folded character.
const std::vector<Folding>& Foldings() {
  static const std::vector<Folding> foldings = [] {
    std::vector<Folding> found;
    for (char32_t c = 0; c <= kLastCharacter; ++c) {
      const char32_t folded = FoldCase(c);
      if (folded != c) found.emplace_back(folded, c);
    }
    std::sort(found.begin(), found.end());
    return found;
  }();
  return foldings;
}

}  // namespace

char32_t FoldCase(char32_t character) {
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(character), U_FOLD_CASE_DEFAULT));
}

std::u32string FoldCase(std::u32string_view text) {
  std::u32string folded(text);
  for (char32_t& character : folded) character = FoldCase(character);
  return folded;
}

std::vector<char32_t> CaseVariants(char32_t folded) {
  std::vector<char32_t> variants{folded};
  const std::vector<Folding>& all = Foldings();
  for (auto at = std::lower_bound(all.begin(), all.end(), Folding(folded, 0));
       at != all.end() && at->first == folded; ++at) {
    variants.push_back(at->second);
  }
  return variants;
}

}  // namespace quill
