#include "rtf/writing/character_bytes.h"

#include <algorithm>
#include <cstdint>

#include "rtf/syntax/ascii.h"
#include "rtf/syntax/lexer.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

// Whether the bytes end in a \u with less behind it than `fallback` characters.
bool LacksFallback(std::string_view bytes, std::uint32_t fallback) {
  if (!bytes.starts_with("\\u") || fallback == 0) return false;
  std::uint32_t lacking = 0;
  Lexer lexer(bytes);
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kIgnored) continue;
    if (lacking == 0 && token.kind == Token::kWord && token.word == "u") {
      lacking = fallback;
    } else {
      const Offset taken = token.kind == Token::kText ? token.end - token.begin : 1;
      lacking -= std::min<std::uint32_t>(lacking, taken);
    }
  }
  return lacking > 0;
}

}  // namespace

std::string_view CharacterBytes::Of(std::size_t character) const {
  return document_.BytesOf(static_cast<Position>(character));
}

bool CharacterBytes::IsUnfinished(std::size_t character) const {
  const std::string_view bytes = Of(character);
  if (bytes.empty()) return false;
  if (document_.Text()[character] == kReplacement) return true;
  return LacksFallback(bytes, document_.FormatAt(static_cast<Position>(character)).look.fallback);
}

bool CharacterBytes::EndInText(std::size_t character) const {
  const std::string_view bytes = Of(character);
  return !bytes.empty() && bytes[0] != '\\' && bytes[0] != '{';
}

bool CharacterBytes::AreBareObject(std::size_t character) const {
  if (document_.Text()[character] != kObject) return false;
  // Others begin with a brace, or are the character U+FFFC itself.
  const std::string_view bytes = Of(character);
  return bytes.size() > 1 && bytes[0] == '\\' && IsLetter(bytes[1]) && bytes[1] != 'u';
}

std::size_t CharacterBytes::OpenGroups(std::size_t character) const {
  const bool last = document_.Origins()[character].end() == document_.GetSource().bytes.size();
  if (document_.Text()[character] != kObject || !last) return 0;
  std::size_t open = AreBareObject(character) ? 1 : 0;
  Lexer lexer(Of(character));
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kOpen) ++open;
    if (token.kind == Token::kClose && open > 0) --open;
  }
  return open;
}

std::string_view CharacterBytes::Inside(Offset begin) const {
  const Source& source = document_.GetSource();
  const auto pair = std::lower_bound(source.splitPairs.begin(), source.splitPairs.end(), begin,
                                     [](const SplitPair& p, Offset at) { return p.begin < at; });
  if (pair == source.splitPairs.end() || pair->begin != begin) return {};
  return std::string_view(source.bytes).substr(pair->wordsBegin, pair->wordsEnd - pair->wordsBegin);
}

}  // namespace quill::rtf
