#include "rtf/syntax/lexer.h"

#include <algorithm>
#include <array>
#include <limits>

#include "rtf/syntax/ascii.h"

namespace quill::rtf {
namespace {

bool IsIgnored(char c) { return c == '\r' || c == '\n' || c == '\0'; }

// Whether a byte continues a run of literal text.
constexpr std::array<bool, 256> MakeLiteral() {
  std::array<bool, 256> literal{};
  literal.fill(true);
  for (const char c : {'{', '}', '\\', '\r', '\n', '\0'})
    literal[static_cast<unsigned char>(c)] = false;
  return literal;
}
constexpr std::array<bool, 256> kLiteral = MakeLiteral();

bool IsLiteral(char c) { return kLiteral[static_cast<unsigned char>(c)]; }

}  // namespace

Token Lexer::Next() {
  Token token;
  token.begin = at_;
  if (AtEnd()) {
    token.end = at_;
    return token;
  }
  const char c = Here();
  if (c == '{' || c == '}') {
    token.kind = c == '{' ? Token::kOpen : Token::kClose;
    ++at_;
  } else if (c == '\\') {
    Backslash(token);
  } else {
    Text(token);
  }
  token.end = at_;
  return token;
}

void Lexer::Text(Token& token) {
  if (IsIgnored(Here())) {
    token.kind = Token::kIgnored;
    while (!AtEnd() && IsIgnored(Here())) ++at_;
  } else {
    token.kind = Token::kText;
    while (!AtEnd() && IsLiteral(Here())) ++at_;
  }
}

void Lexer::Backslash(Token& token) {
  ++at_;
  if (AtEnd()) {
    token.kind = Token::kSymbol;
    token.number = -1;
  } else if (IsLetter(Here())) {
    Word(token);
  } else if (Here() == '\'') {
    Hex(token);
  } else {
    token.kind = Token::kSymbol;
    token.number = static_cast<unsigned char>(Here());
    ++at_;
  }
}

void Lexer::Word(Token& token) {
  token.kind = Token::kWord;
  const Offset begin = at_;
  while (!AtEnd() && IsLetter(Here())) ++at_;
  token.word = {bytes_.data() + begin, at_ - begin};
  Number(token);
  if (!AtEnd() && Here() == ' ') ++at_;
  if (token.word == "bin" && token.number > 0) {
    const std::size_t rest = bytes_.size() - at_;
    at_ += static_cast<Offset>(std::min<std::size_t>(static_cast<std::size_t>(token.number), rest));
  }
}

void Lexer::Number(Token& token) {
  const bool negative = !AtEnd() && Here() == '-';
  if (negative) ++at_;
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (; !AtEnd() && IsDigit(Here()); ++at_) {
    token.hasNumber = true;
    number = std::min(number * 10 + (Here() - '0'), kMost);
  }
  token.number = static_cast<std::int32_t>(negative ? -number : number);
}

void Lexer::Hex(Token& token) {
  token.kind = Token::kHex;
  token.number = -1;
  ++at_;
  for (int digits = 0; digits < 2 && !AtEnd() && HexValue(Here()) >= 0; ++digits, ++at_) {
    token.number = std::max(token.number, 0) * 16 + HexValue(Here());
  }
  // Whatever stands in place of the second digit is not text.
  const bool broken = at_ - token.begin == 3 && token.number >= 0;
  if (broken && !AtEnd() && IsLiteral(Here())) ++at_;
}

}  // namespace quill::rtf
