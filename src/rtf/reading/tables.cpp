#include "rtf/reading/tables.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "rtf/syntax/ascii.h"
#include "rtf/syntax/words.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

constexpr std::size_t kMostFaces = 65535;

// The code page that a font's name implies by its ending, if nothing else tells.
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

// Appends a UTF-16 code unit, joining it with a preceding high surrogate.
void AppendUnit(std::u32string& name, char32_t unit) {
  const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
  if (low && !name.empty() && name.back() >= 0xD800 && name.back() <= 0xDBFF) {
    name.back() = 0x10000 + ((name.back() - 0xD800) << 10U) + (unit - 0xDC00);
  } else {
    name += unit;
  }
}

std::string Lower(std::string_view name) {
  std::string lower(name);
  for (char& c : lower) c = AsciiLower(c);
  return lower;
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

void FontTable::Read(Lexer& lexer, const CodePage& standard, std::uint32_t fallback) {
  standard_ = &standard;
  fallback_ = fallback;
  // A font has a group of its own or, in old files, stands directly in the table's. Deeper groups
  // (\*\panose, \*\falt) are not part of any name.
  constexpr std::size_t kDeepest = 2;
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = lexer.Next();
    if (token.kind == Token::kEnd) break;
    if (token.kind == Token::kOpen) {
      ++depth;
    } else if (token.kind == Token::kClose) {
      --depth;
    } else if (depth <= kDeepest) {
      Read(token, lexer.BytesOf(token));
    }
  }
  Finish();
}

void FontTable::Read(const Token& token, std::string_view bytes) {
  if (token.kind == Token::kWord) {
    ReadWord(token);
  } else if (token.kind == Token::kHex && token.number >= 0) {
    const char byte = static_cast<char>(token.number);
    ReadName({&byte, 1});
  } else if (token.kind == Token::kText) {
    const std::size_t end = bytes.find(';');
    ReadName(bytes.substr(0, end));
    if (end != std::string_view::npos) Finish();
  }
}

void FontTable::ReadName(std::string_view bytes) {
  const std::size_t standIns = std::min<std::size_t>(bytes.size(), fallbackLeft_);
  fallbackLeft_ -= static_cast<std::uint32_t>(standIns);
  entry_.bytes += bytes.substr(standIns);
}

void FontTable::ReadWord(const Token& token) {
  const Word word = LookUp(token.word).word;
  if (word == Word::kFont) {
    Finish();
    entry_.begun = true;
    entry_.number = token.number;
  } else if (word == Word::kFontCharset) {
    entry_.charset = token.number;
  } else if (word == Word::kFontCodePage) {
    entry_.codePage = token.number;
  } else if (word == Word::kUnicode) {
    EndBytes();
    AppendUnit(entry_.name, static_cast<char16_t>(token.number));
    fallbackLeft_ = fallback_;
  }
}

void FontTable::EndBytes() {
  const CodePage& page = PageOf(entry_);
  // A symbol font's name is ordinary text.
  entry_.name += DecodeName(entry_.bytes, page.IsSymbol() ? CodePage::Of(1252) : page);
  entry_.bytes.clear();
}

// No \fcharset stands for UTF-8, so it wins if the font or the file names it.
const CodePage& FontTable::PageOf(const Entry& entry) const {
  const int ofCharset = CodePageOfCharset(entry.charset);
  if (entry.codePage == CodePage::kUtf8) return CodePage::Of(CodePage::kUtf8);
  if (standard_->Number() == CodePage::kUtf8 && ofCharset != CodePage::kSymbol) return *standard_;
  for (const int number : {ofCharset, entry.codePage, CodePageOfName(entry.bytes)}) {
    if (number != 0) return CodePage::Of(number);
  }
  return *standard_;
}

void FontTable::Finish() {
  const CodePage& page = PageOf(entry_);
  EndBytes();
  fallbackLeft_ = 0;
  const Entry entry = std::exchange(entry_, {});
  if (!entry.begun) return;
  Font font{0, &page};
  if (faces_.size() < kMostFaces) {
    font.face = static_cast<std::uint16_t>(faces_.size());
    faces_.push_back({ToUtf8(entry.name), page.IsSymbol()});
    if (page.IsSymbol()) symbolNames_.insert(Lower(faces_.back().name));
  }
  fonts_[entry.number] = font;
}

const Font* FontTable::Find(std::int32_t number) const {
  const auto found = fonts_.find(number);
  return found != fonts_.end() ? &found->second : nullptr;
}

bool FontTable::IsSymbol(std::string_view name) const {
  static constexpr std::array<std::string_view, 10> kKnown = {
      "symbol",       "wingdings",     "wingdings 2",       "wingdings 3",    "webdings",
      "zapfdingbats", "zapf dingbats", "itc zapf dingbats", "monotype sorts", "mt extra"};
  const std::string lower = Lower(name);
  return symbolNames_.contains(lower) ||
         std::find(kKnown.begin(), kKnown.end(), lower) != kKnown.end();
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
