#include "rtf/unfinished.h"

#include <algorithm>

#include "rtf/lexer.h"
#include "text/unicode.h"

namespace quill::rtf {

bool IsUnfinished(std::string_view bytes, char32_t character, std::uint32_t fallback) {
  if (bytes.empty()) return false;
  if (character == kReplacement) return true;
  if (!bytes.starts_with("\\u") || fallback == 0) return false;
  std::uint32_t lacking = 0;
  Lexer lexer(bytes);
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kIgnored) continue;
    if (token.kind == Token::kWord && token.word == "u") {
      lacking = fallback;
    } else {
      const Offset taken = token.kind == Token::kText ? token.end - token.begin : 1;
      lacking -= std::min<std::uint32_t>(lacking, taken);
    }
  }
  return lacking > 0;
}

}  // namespace quill::rtf
