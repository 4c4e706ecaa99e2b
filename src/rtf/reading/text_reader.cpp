// Tokens to characters and formatting. What groups hold instead of text is in destinations.cpp.
#include "rtf/reading/text_reader.h"

#include <algorithm>
#include <utility>

#include "rtf/syntax/words.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

// Whether a \'hh lacks digits.
bool IsShort(const Token& token) { return token.end - token.begin < 4; }

State FirstState() {
  State state;
  state.page = &CodePage::Of(1252);
  return state;
}

}  // namespace

TextReader::TextReader(std::string bytes, ColourTable known)
    : bytes_(std::move(bytes)),
      lexer_(bytes_, static_cast<Offset>(bytes_.find('{'))),
      states_(formats_, FirstState()),
      text_(states_, bytes_.size()),
      marks_(bytes_.size()) {
  tables_.standardPage = states_.Now().page;
  tableFound_ = !known.entries.empty();
  tables_.colours = std::move(known);
}

Document TextReader::Read() {
  Offset bodyEnd = 0;
  while (!ended_) {
    const Token token = lexer_.Next();
    bodyEnd = token.begin;
    if (token.kind == Token::kEnd) break;
    if (fallbackLeft_ > 0 && TakeAsFallback(token)) continue;
    if (!Take(token)) break;
  }
  text_.Flush();
  if (!ended_) {
    Oddity();
    marks_.End(static_cast<Offset>(bytes_.size()));
  }
  if (!headerEnded_) tablePlace_ = bodyEnd;
  if (!tables_.colours.present) tables_.colours.end = tablePlace_;
  const FormatId endFormat = states_.Format();
  // A line feed that comes to stand behind one would be read together with it.
  if (!text_.IsWhole() || loneReturns_ > 0) Oddity();
  Source source{std::move(bytes_), std::move(tables_.colours), marks_.Take(), bodyEnd, wellFormed_};
  return Document(std::move(source), tables_.fonts.TakeFaces(), std::move(formats_),
                  text_.TakeText(), text_.TakeFormats(), text_.TakeOrigins(), endFormat);
}

// Returns false behind the end of the document's group.
bool TextReader::Take(const Token& token) {
  if (skipNext_ && token.kind != Token::kIgnored && token.kind != Token::kOpen) {
    // No group follows.
    skipNext_ = false;
    Oddity();
  }
  if (starred_ && token.kind != Token::kWord && token.kind != Token::kIgnored) Oddity();
  switch (token.kind) {
    case Token::kIgnored:
      return true;
    case Token::kOpen:
      EndHeader(nullptr, token);
      Open(token);
      return true;
    case Token::kClose:
      return Close(token);
    case Token::kText:
      EndHeader(nullptr, token);
      TakeText(token);
      break;
    case Token::kHex:
      EndHeader(nullptr, token);
      TakeHex(token);
      break;
    case Token::kSymbol:
      EndHeader(nullptr, token);
      TakeSymbol(token);
      return true;
    case Token::kWord:
      TakeWord(token);
      break;
    case Token::kEnd:
      return false;
  }
  atHead_ = false;
  starred_ = false;
  return true;
}

// Runs over what stands in for a \u in readers without Unicode. Bytes, words and symbols count as
// one character each; a brace ends it. Returns whether the token was taken.
bool TextReader::TakeAsFallback(const Token& token) {
  if (token.kind == Token::kIgnored) return true;
  if (token.kind == Token::kOpen || token.kind == Token::kClose) {
    fallbackLeft_ = 0;
    Oddity();
    return false;
  }
  Offset end = token.end;
  if (token.kind == Token::kText) {
    const std::uint32_t taken = std::min<std::uint32_t>(fallbackLeft_, end - token.begin);
    end = token.begin + taken;
    fallbackLeft_ -= taken;
    lexer_.Seek(end);
  } else {
    --fallbackLeft_;
    if (token.kind != Token::kHex || IsShort(token)) Oddity();
  }
  if (fallbackBelongs_) text_.ExtendUnicode(end);
  return true;
}

void TextReader::TakeText(const Token& token) {
  marks_.Characters();
  text_.AddBytes(lexer_.BytesOf(token), token.begin);
  // In raw Shift-JIS the second byte of a character may look like a brace or a backslash.
  if (text_.AwaitsByte() && states_.Now().page->Number() == 932 && lexer_.At() < bytes_.size()) {
    const char next = bytes_[lexer_.At()];
    if (next != '\\' && next != '{' && next != '}') return;
    text_.AddByte(static_cast<unsigned char>(next), lexer_.At(), lexer_.At() + 1);
    lexer_.Seek(lexer_.At() + 1);
  }
}

void TextReader::TakeHex(const Token& token) {
  if (IsShort(token)) Oddity();
  if (token.number < 0) {
    // Among the bytes of a character it belongs to that.
    if (!text_.AwaitsByte()) marks_.Other();
    return;
  }
  if (token.number == '\r' || token.number == '\n') return TakeLineEndByte(token);
  marks_.Characters();
  text_.AddByte(static_cast<unsigned char>(token.number), token.begin, token.end);
}

// Carriage return and line feed are one paragraph end each, and together one.
void TextReader::TakeLineEndByte(const Token& token) {
  if (token.number == '\n' && returnEnd_ != 0 && IsOnlyLineEnds(returnEnd_, token.begin)) {
    text_.ExtendLast(token.end);
    --loneReturns_;
    return;
  }
  AddCharacter(kParagraphEnd, token);
  if (token.number == '\n') return;
  returnEnd_ = token.end;
  ++loneReturns_;
}

void TextReader::TakeSymbol(const Token& token) {
  switch (token.number) {
    case '*':
      starred_ = true;
      starredHead_ = atHead_;
      return;
    case '\\':
    case '{':
    case '}':
      // These are bytes like any other.
      marks_.Characters();
      text_.AddByte(static_cast<unsigned char>(token.number), token.begin, token.end);
      break;
    case '\r':
    case '\n':
      AddCharacter(kParagraphEnd, token);
      break;
    case '\t':
      AddCharacter(U'\t', token);
      break;
    case '~':
      AddCharacter(0xA0, token);
      break;
    case '_':
      AddCharacter(0x2011, token);
      break;
    default:
      text_.WordComes();
      marks_.Other();
  }
  atHead_ = false;
  starred_ = false;
}

void TextReader::TakeWord(const Token& token) {
  const WordEntry& entry = LookUp(token.word);
  const bool isCharacter = entry.word >= Word::kCharacter && entry.word <= Word::kUnicode;
  if (starred_ && (!starredHead_ || isCharacter)) Oddity();
  EndHeader(&entry, token);
  if (TakeCharacter(entry, token)) return;
  text_.WordComes();
  switch (entry.word) {
    case Word::kData:
      // Outside of pictures and what is skipped, it could be taken for words.
      Oddity();
      [[fallthrough]];
    case Word::kUnknown:
      marks_.Other();
      if (starred_ && starredHead_) SkipGroup();
      return;
    case Word::kColour:
    case Word::kOtherColour:
    case Word::kBackground:
      NoteColour(tables_.colours, token.number);
      break;
    case Word::kCharacterSet:
    case Word::kAnsiCodePage:
    case Word::kDefaultFont:
      TakeCharacterSet(entry, token);
      break;
    default:
      break;
  }
  if (entry.word >= Word::kSkipped && entry.word <= Word::kAlternatives) {
    TakeDestination(entry, token);
    return;
  }
  const AttributeChange change = ApplyStateWord(entry, token, tables_, states_);
  if (change == AttributeChange{}) {
    marks_.Other();
  } else {
    marks_.Word(change, token.end);
  }
}

bool TextReader::TakeCharacter(const WordEntry& entry, const Token& token) {
  switch (entry.word) {
    case Word::kCharacter:
      AddCharacter(static_cast<char32_t>(entry.argument), token);
      return true;
    case Word::kParagraph:
      AddCharacter(kParagraphEnd, token);
      return true;
    case Word::kCell:
      AddCharacter(U'\t', token, Origin::kCellEnd);
      return true;
    case Word::kRow:
      AddCharacter(kParagraphEnd, token, Origin::kRowEnd);
      return true;
    case Word::kUnicode:
      TakeUnicode(token);
      return true;
    default:
      return false;
  }
}

void TextReader::AddCharacter(char32_t character, const Token& token, Origin::Kind kind) {
  marks_.Characters();
  text_.Add(character, token.begin, token.end, kind);
}

void TextReader::TakeUnicode(const Token& token) {
  fallbackBelongs_ = text_.AddUnicode(token.number, token.begin, token.end);
  fallbackLeft_ = states_.Now().look.fallback;
  if (fallbackBelongs_) {
    marks_.Characters();
  } else {
    marks_.Other();
  }
}

void TextReader::TakeCharacterSet(const WordEntry& entry, const Token& token) {
  if (entry.word == Word::kDefaultFont) {
    tables_.defaultFont = token.number;
  } else if (entry.word == Word::kAnsiCodePage && token.number > 0) {
    ansiPageGiven_ = true;
    SetStandardPage(CodePage::Of(token.number));
  } else if (entry.word == Word::kCharacterSet && !ansiPageGiven_) {
    SetStandardPage(CodePage::Of(entry.argument));
  }
}

void TextReader::SetStandardPage(const CodePage& page) {
  tables_.standardPage = &page;
  SelectFont(tables_.defaultFont, tables_, states_);
}

void TextReader::Open(const Token& token) {
  text_.Flush();
  if (std::exchange(skipNext_, false)) {
    marks_.Other();
    SkipToClose();
    return;
  }
  marks_.Open(token.begin, states_.Now().attributes);
  states_.Open();
  groupOpen_ = token.begin;
  atHead_ = true;
  starred_ = false;
}

bool TextReader::Close(const Token& token) {
  text_.Flush();
  atHead_ = false;
  starred_ = false;
  marks_.Close(token.begin);
  // What is in force at the document's end stays, for what is typed there.
  if (states_.Depth() > 1) {
    const bool endsField = states_.Depth() == field_.depth;
    states_.Close();
    if (endsField) EndField(token.end);
    return true;
  }
  ended_ = true;
  return false;
}

}  // namespace quill::rtf
