#include "rtf/syntax/symbol_field.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

#include "rtf/syntax/ascii.h"
#include "rtf/syntax/lexer.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

// The text of an instruction, without any groups of data in it.
std::string TextOf(std::string_view content) {
  std::string text;
  std::size_t depth = 0;
  std::size_t starred = 0;  // the depth of a group that begins with \*
  Lexer lexer(content);
  for (Token token = lexer.Next(); token.kind != Token::kEnd; token = lexer.Next()) {
    if (token.kind == Token::kOpen) {
      ++depth;
    } else if (token.kind == Token::kClose) {
      if (depth == 0) break;
      if (depth-- == starred) starred = 0;
    } else if (starred > 0) {
      continue;
    } else if (token.kind == Token::kText) {
      text += lexer.BytesOf(token);
    } else if (token.kind == Token::kSymbol && token.number == '*') {
      starred = depth;
    } else if ((token.kind == Token::kSymbol || token.kind == Token::kHex) && token.number > 0) {
      text += static_cast<char>(token.number);
    }
  }
  return text;
}

// A word of an instruction, a text in quotation marks, or a backslash and a letter.
struct Part {
  bool isSwitch = false;
  std::string text;
};

class Parts {
 public:
  explicit Parts(std::string_view instruction) : rest_(instruction) {}

  // An empty part at the end.
  Part Next() {
    constexpr std::string_view kBlanks = " \t";
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
    if (rest_.empty()) return {};
    if (rest_.front() == '\\') return {true, Cut(2).substr(1)};
    if (rest_.front() != '"') return {false, Cut(rest_.find_first_of(" \t\\\""))};
    Cut(1);
    Part part{false, Cut(rest_.find('"'))};
    Cut(1);
    return part;
  }
  bool AtEnd() const { return rest_.empty(); }

 private:
  std::string Cut(std::size_t length) {
    std::string cut(rest_.substr(0, length));
    rest_.remove_prefix(cut.size());
    return cut;
  }

  std::string_view rest_;
};

bool IsWord(std::string_view text, std::string_view word) {
  return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                    [](char a, char b) { return AsciiLower(a) == b; });
}

std::optional<std::uint32_t> NumberOf(std::string_view text) {
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  std::uint32_t number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

char32_t Decoded(std::uint32_t number, const CodePage& page) {
  const auto first = static_cast<unsigned char>(number > 0xFF ? number >> 8U : number);
  if (number <= 0xFF) return page.SequenceLength(first) == 1 ? page.Single(first) : 0;
  if (number > 0xFFFF || page.SequenceLength(first) != 2) return number;
  const auto second = static_cast<unsigned char>(number & 0xFFU);
  return page.Sequence({static_cast<char>(first), static_cast<char>(second)});
}

}  // namespace

std::optional<SymbolField> ReadSymbolField(std::string_view content) {
  const std::string text = TextOf(content);
  Parts parts(text);
  if (!IsWord(parts.Next().text, "symbol")) return std::nullopt;
  const std::optional<std::uint32_t> number = NumberOf(parts.Next().text);
  if (!number) return std::nullopt;
  SymbolField field;
  field.number = *number;
  while (!parts.AtEnd()) {
    const Part part = parts.Next();
    if (!part.isSwitch) continue;
    if (IsWord(part.text, "u")) field.set = SymbolField::kUnicode;
    if (IsWord(part.text, "j")) field.set = SymbolField::kShiftJis;
    if (IsWord(part.text, "f")) field.font = parts.Next().text;
  }
  return field;
}

char32_t CharacterOf(const SymbolField& field, const CodePage& ansi, bool symbolFont) {
  constexpr std::uint32_t kSymbols = 0xF000;
  char32_t character = field.number;
  if (field.set == SymbolField::kShiftJis) {
    character = Decoded(field.number, CodePage::Of(932));
  } else if (field.set == SymbolField::kFont && symbolFont) {
    character = field.number <= 0xFF ? kSymbols + field.number : field.number;
  } else if (field.set == SymbolField::kFont) {
    character = Decoded(field.number, ansi);
  }
  const bool control = character < 0x20 || field.number < 0x20;
  const bool half = character >= 0xD800 && character <= 0xDFFF;
  const bool none = control || half || character > 0x10FFFF || character == kReplacement;
  return none ? 0 : character;
}

}  // namespace quill::rtf
