#include "rtf/decoration.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

#include "rtf/fragment.h"
#include "rtf/syntax/lexer.h"

namespace quill::rtf {
namespace {

// A file that holds more in front of a paragraph must not take the time.
constexpr std::size_t kMostInFront = std::size_t{1} << 17U;
constexpr std::size_t kMostLabelBytes = 4096;
constexpr std::size_t kMostLabel = 32;

// The bytes between the character before a paragraph and its first one.
std::string_view InFrontOf(const Document& document, Position paragraph) {
  const auto at = static_cast<std::size_t>(paragraph);
  const OriginList& origins = document.Origins();
  const std::size_t begin = at > 0 ? origins[at - 1].end() : 0;
  const std::size_t end = origins[at].begin;
  if (begin >= end) return {};
  const std::size_t length = std::min(end - begin, kMostInFront);
  return std::string_view(document.GetSource().bytes).substr(end - length, length);
}

// Goes forward, from one first character to the next: asked of every paragraph, the search from the
// end took a seventh of the time of opening.
std::size_t FindLast(std::string_view bytes, std::string_view word) {
  std::size_t last = std::string_view::npos;
  for (std::size_t at = bytes.find(word); at != std::string_view::npos;
       at = bytes.find(word, at + 1)) {
    last = at;
  }
  return last;
}

// Where a label's group has its content; empty where there is none.
std::string_view LabelIn(std::string_view bytes) {
  for (const std::string_view head : {"{\\listtext", "{\\pntext"}) {
    const std::size_t at = FindLast(bytes, head);
    if (at != std::string_view::npos) return bytes.substr(at + head.size(), kMostLabelBytes);
  }
  return {};
}

}  // namespace

int LabelLength(const Document& document, Position paragraph) {
  const std::string_view label = UpToClose(LabelIn(InFrontOf(document, paragraph)));
  Lexer lexer(label);
  std::size_t length = 0;
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kText) length += token.end - token.begin;
    // What stands in for a \u counts instead of it.
    if (token.kind == Token::kHex) ++length;
  }
  return static_cast<int>(std::min(length, kMostLabel));
}

Label LabelOf(const Document& document, Position paragraph) {
  const std::string_view group = LabelIn(InFrontOf(document, paragraph));
  if (group.empty()) return {};
  const std::optional<Document> read = ReadFragment(document, UpToClose(group));
  if (!read) return {};
  constexpr std::u32string_view kBlanks = U" \t\n\u00A0\u2028";
  const std::u32string& text = read->Text();
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::u32string::npos) return {};
  const std::size_t end = text.find_last_not_of(kBlanks) + 1;
  const std::uint16_t font = read->FormatAt(static_cast<Position>(begin)).look.font;
  return {text.substr(begin, std::min(end - begin, kMostLabel)), read->Fonts()[font].name};
}

bool EndsPage(const Document& document, Position paragraphEnd) {
  if (paragraphEnd + 1 >= document.Length()) return false;
  const std::string_view end = document.BytesOf(paragraphEnd);
  const std::string_view between = InFrontOf(document, paragraphEnd + 1);
  if (end.starts_with("\\page")) return true;
  if (end.starts_with("\\sect")) {
    return between.find("\\sbknone") == std::string_view::npos &&
           between.find("\\sbkcol") == std::string_view::npos;
  }
  const std::size_t word = FindLast(between, "\\pagebb");
  return word != std::string_view::npos && !between.substr(word).starts_with("\\pagebb0") &&
         between.find("\\pard", word) == std::string_view::npos;
}

}  // namespace quill::rtf
