#include "rtf/tables.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "rtf/words.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

constexpr std::size_t kMostFaces = 65535;

// What the end of a font's name says about its code page, where nothing else does.
int CodePageOfName(std::string_view name) {
  static constexpr std::array<std::pair<std::string_view, int>, 8> kSuffixes = {
      {{" CE", 1250},
       {" Cyr", 1251},
       {" Greek", 1253},
       {" Tur", 1254},
       {" (Hebrew)", 1255},
       {" (Arabic)", 1256},
       {" Baltic", 1257},
       {" (Vietnamese)", 1258}}};
  for (const auto& [suffix, page] : kSuffixes) {
    if (name.ends_with(suffix)) return page;
  }
  return 0;
}

std::u32string DecodeName(const std::string& bytes, const CodePage& page) {
  std::u32string name;
  for (std::size_t i = 0; i < bytes.size();) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const auto length = static_cast<std::size_t>(page.SequenceLength(byte));
    const bool whole = i + length <= bytes.size();
    name += length == 1 || !whole ? page.Single(byte) : page.Sequence(bytes.substr(i, length));
    i += whole ? length : 1;
  }
  return name;
}

}  // namespace

FontTable::FontTable() { faces_.emplace_back(); }

void FontTable::Read(Lexer& lexer, const CodePage& standard) {
  standard_ = &standard;
  // A font stands in a group of its own or, in old files, directly in the table's. What is nested
  // deeper (\*\panose, \*\falt) belongs to no name.
  constexpr std::size_t kDeepest = 2;
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = lexer.Next();
    if (token.kind == Token::kEnd) break;
    if (token.kind == Token::kOpen) {
      ++depth;
    } else if (token.kind == Token::kClose) {
      --depth;
    } else if (depth <= kDeepest) {
      Take(token, lexer.BytesOf(token));
    }
  }
  Finish();
}

void FontTable::Take(const Token& token, std::string_view bytes) {
  if (token.kind == Token::kWord) {
    TakeWord(token);
  } else if (token.kind == Token::kHex && token.number >= 0) {
    entry_.name += static_cast<char>(token.number);
  } else if (token.kind == Token::kText) {
    const std::size_t end = bytes.find(';');
    entry_.name += bytes.substr(0, end);
    if (end != std::string_view::npos) Finish();
  }
}

void FontTable::TakeWord(const Token& token) {
  const Word word = LookUp(token.word).word;
  if (word == Word::kFont) {
    Finish();
    entry_.begun = true;
    entry_.number = token.number;
  } else if (word == Word::kFontCharset) {
    entry_.charset = token.number;
  } else if (word == Word::kFontCodePage) {
    entry_.codePage = token.number;
  }
}

void FontTable::Finish() {
  const Entry entry = std::exchange(entry_, {});
  if (!entry.begun) return;
  int number = CodePageOfCharset(entry.charset);
  if (number == 0) number = entry.codePage;
  if (number == 0) number = CodePageOfName(entry.name);
  const CodePage& page = number == 0 ? *standard_ : CodePage::Of(number);
  // The name of a symbol font is ordinary text.
  const CodePage& namePage = page.IsSymbol() ? CodePage::Of(1252) : page;
  Font font{0, &page};
  if (faces_.size() < kMostFaces) {
    font.face = static_cast<std::uint16_t>(faces_.size());
    faces_.push_back({ToUtf8(DecodeName(entry.name, namePage)), page.IsSymbol()});
  }
  fonts_[entry.number] = font;
}

const Font* FontTable::Find(std::int32_t number) const {
  const auto found = fonts_.find(number);
  return found != fonts_.end() ? &found->second : nullptr;
}

bool ReadColourTable(Lexer& lexer, ColourTable& result) {
  ColourTable table;
  table.present = true;
  table.highestUsed = result.highestUsed;
  table.expandedEnd = result.expandedEnd;
  ColourTable::Entry entry;
  std::array<unsigned, 3> parts{};
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = lexer.Next();
    table.end = token.begin;
    if (token.kind == Token::kEnd) return false;
    if (token.kind == Token::kOpen) ++depth;
    if (token.kind == Token::kClose) --depth;
    if (token.kind == Token::kWord) {
      constexpr std::array<std::string_view, 3> kParts = {"red", "green", "blue"};
      const auto* const part = std::find(kParts.begin(), kParts.end(), token.word);
      if (part == kParts.end()) continue;
      parts[static_cast<std::size_t>(part - kParts.begin())] =
          static_cast<unsigned>(std::clamp(token.number, 0, 255));
      entry = {false, RGB(parts[0], parts[1], parts[2])};
      table.endsInSemicolon = false;
    } else if (token.kind == Token::kText) {
      for (const char byte : lexer.BytesOf(token)) {
        if (byte != ';') continue;
        table.entries.push_back(std::exchange(entry, {}));
        parts = {};
        table.endsInSemicolon = true;
      }
    }
  }
  if (!table.endsInSemicolon) table.entries.push_back(entry);
  result = std::move(table);
  return true;
}

Colour ColourOf(const ColourTable& table, std::int32_t number) {
  const bool inTable = number >= 0 && static_cast<std::size_t>(number) < table.entries.size();
  return inTable ? table.entries[static_cast<std::size_t>(number)].colour : 0;
}

void NoteColour(ColourTable& table, std::int32_t number) {
  if (number < 0 || number > kHighestColour) return;
  table.highestUsed = std::max(table.highestUsed, static_cast<std::uint32_t>(number));
}

}  // namespace quill::rtf
