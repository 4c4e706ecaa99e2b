#include "operators/dictionary_entry.h"

#include <algorithm>

#include "text/unicode.h"

namespace quill {
namespace {

// Counted from 1.
constexpr std::size_t kSecondBackslashColumn = 20;

// An entry is one line of the file.
bool EndsLine(char32_t c) { return c == kParagraphEnd || c == U'\r'; }

std::u32string Written(const OperatorEntry& entry, std::size_t gap, char32_t secondDelimiter) {
  std::u32string lemma = entry.Lemma;
  std::replace(lemma.begin(), lemma.end(), kLineBreak, U' ');
  std::u32string written = lemma + U"\\" + std::u32string(gap, U' ') + secondDelimiter +
                           entry.Category + U"< " + entry.Definition + U" >";
  std::replace_if(written.begin(), written.end(), EndsLine, U' ');
  return written;
}

}  // namespace

std::u32string ListForm(const OperatorEntry& entry) { return Written(entry, 6, U'|'); }

std::u32string FileForm(const OperatorEntry& entry) {
  const std::size_t inFront = entry.Lemma.size() + 1;
  const std::size_t gap = std::max(kSecondBackslashColumn, inFront + 2) - 1 - inFront;
  return Written(entry, gap, U'\\');
}

ItemParts CutItem(std::u32string_view item) {
  constexpr std::size_t kNone = std::u32string_view::npos;
  const std::size_t first = item.find(U'\\');
  if (first == kNone) return {.Lemma = std::nullopt, .Category = item.substr(0, 1)};
  const std::size_t second = item.find_first_of(U"\\|", first + 1);
  const std::size_t delimiter = second == kNone ? first : second;
  return {.Lemma = item.substr(0, first), .Category = item.substr(delimiter + 1, 1)};
}

}  // namespace quill
