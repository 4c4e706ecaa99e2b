// Splits rich text into tokens.
// A token is a brace, a control word or symbol, a byte written as \'hh, or a run of literal bytes.
// The lexer never fails: any bytes come out as tokens, and no token but the last is empty.
#pragma once

#include <cstdint>
#include <string_view>

#include "text/source.h"

namespace quill::rtf {

struct Token {
  enum Kind : std::uint8_t {
    kEnd,      // of the file
    kOpen,     // {
    kClose,    // }
    kText,     // literal bytes: no brace, no backslash, no line end, no NUL
    kIgnored,  // line ends and NULs between other tokens
    kHex,      // \'hh; `number` is the byte, -1 where no hexadecimal digit follows. Where one does,
               // the byte behind it belongs to the token, whatever literal it is.
    kWord,     // \word with an optional number and the one blank that ends it; \bin with its data
    kSymbol,   // \ and one other character; `number` is that byte, -1 at the end of the file
  };

  Kind kind = kEnd;
  bool hasNumber = false;
  std::int32_t number = 0;  // clamped to 32 bits
  Offset begin = 0;
  Offset end = 0;
  std::string_view word;  // of a control word, without backslash and number
};

class Lexer {
 public:
  // The bytes must outlive the lexer and its tokens, and be less than 4 GB.
  explicit Lexer(std::string_view bytes, Offset from = 0) : bytes_(bytes), at_(from) {}

  Token Next();
  Offset At() const { return at_; }
  // Continues from there; at most the end of the bytes.
  void Seek(Offset at) { at_ = at; }
  std::string_view Bytes() const { return bytes_; }
  std::string_view BytesOf(const Token& token) const {
    return bytes_.substr(token.begin, token.end - token.begin);
  }

 private:
  void Text(Token& token);
  void Backslash(Token& token);
  void Word(Token& token);
  void Number(Token& token);
  void Hex(Token& token);
  bool AtEnd() const { return at_ >= bytes_.size(); }
  char Here() const { return bytes_[at_]; }

  std::string_view bytes_;
  Offset at_;
};

}  // namespace quill::rtf
