// Turns tokens into characters and formatting. Groups are in destinations.cpp.
#include "rtf/reading/parser.h"

#include <utility>

#include "rtf/syntax/words.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

// Whether a \'hh lacks digits.
bool IsShort(const Token& token) { return token.end - token.begin < 4; }

bool IsOfHeader(Word word) {
  return word == Word::kHeader || word == Word::kCharacterSet || word == Word::kAnsiCodePage ||
         word == Word::kDefaultFont || word == Word::kFallback;
}

State FirstState() {
  State state;
  state.page = &CodePage::Of(1252);
  return state;
}

}  // namespace

Parser::Parser(std::string bytes, ColourTable known)
    : bytes_(std::move(bytes)),
      lexer_(bytes_, static_cast<Offset>(bytes_.find('{'))),
      states_(formats_, FirstState()),
      text_(states_, bytes_.size()),
      marks_(bytes_.size()) {
  tables_.standardPage = states_.Now().page;
  if (!known.entries.empty()) colourTable_ = Found::kInTime;
  tables_.colours = std::move(known);
}

Document Parser::Parse() {
  Offset bodyEnd = 0;
  while (!ended_) {
    const Token token = lexer_.Next();
    bodyEnd = token.begin;
    if (token.kind == Token::kEnd) break;
    if (token.kind == Token::kIgnored) continue;
    if (!standIn_.IsExpected() || !ReadStandIn(token)) Read(token);
  }
  text_.Flush();
  if (!ended_) {
    Oddity();
    marks_.End(static_cast<Offset>(bytes_.size()));
  }
  if (!header_.HasEnded()) header_.EndAt(bodyEnd);
  if (!tables_.colours.present) tables_.colours.end = header_.End();
  const FormatId endFormat = states_.Format();
  // If an edit moved a line feed behind a lone return, the two would be read as one.
  if (!text_.IsWhole() || lineEnds_.HasLoneReturn()) Oddity();
  Source source{std::move(bytes_), std::move(tables_.colours), marks_.Take(), bodyEnd, wellFormed_};
  return Document(std::move(source), tables_.fonts.TakeFaces(), std::move(formats_),
                  text_.TakeText(), text_.TakeFormats(), text_.TakeOrigins(), endFormat);
}

void Parser::Read(const Token& token) {
  CheckPlace(token);
  switch (token.kind) {
    case Token::kOpen:
      return OpenGroup(token);
    case Token::kClose:
      return CloseGroup(token);
    case Token::kSymbol:
      return ReadSymbol(token);
    case Token::kText:
      ReadText(token);
      break;
    case Token::kHex:
      ReadHex(token);
      break;
    case Token::kWord:
      ReadWord(token);
      break;
    default:
      break;
  }
  head_.Pass();
}

void Parser::CheckPlace(const Token& token) {
  if (!header_.HasEnded()) PassHeader(token);
  if (skipNext_ && token.kind != Token::kOpen) {
    skipNext_ = false;
    Oddity();
  }
  if (head_.IsStarred() && token.kind != Token::kWord) Oddity();
}

void Parser::PassHeader(const Token& token) {
  if (states_.Depth() == 0 || token.kind == Token::kClose) return;
  const bool isWord = token.kind == Token::kWord;
  if (isWord && IsOfHeader(LookUp(token.word).word)) return;
  // The file's first word stays in front, whatever it is.
  header_.EndAt(isWord && head_.IsFirst() ? token.end : token.begin);
}

// A byte, word or symbol counts as one character; a brace ends the stand-in. Returns whether the
// token, or a first part of it, was consumed.
bool Parser::ReadStandIn(const Token& token) {
  if (token.kind == Token::kOpen || token.kind == Token::kClose) {
    standIn_.End();
    Oddity();
    return false;
  }
  Offset end = token.end;
  if (token.kind == Token::kText) {
    end = token.begin + standIn_.Pass(token.end - token.begin);
    lexer_.Seek(end);
  } else {
    standIn_.Pass(1);
    if (token.kind != Token::kHex || IsShort(token)) Oddity();
  }
  if (standIn_.Belongs()) text_.ExtendUnicode(end);
  return true;
}

void Parser::ReadText(const Token& token) {
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

void Parser::ReadHex(const Token& token) {
  if (IsShort(token)) Oddity();
  if (token.number < 0) {
    // Inside a multi-byte character it is part of that.
    if (!text_.AwaitsByte()) marks_.Other();
  } else if (token.number == '\r' || token.number == '\n') {
    ReadLineEndByte(token);
  } else {
    AddByte(static_cast<unsigned char>(token.number), token);
  }
}

// A carriage return, a line feed, and the pair of them are one paragraph end.
void Parser::ReadLineEndByte(const Token& token) {
  const Offset behindReturn = lineEnds_.ReturnEnd();
  if (token.number == '\n' && behindReturn != 0 && IsOnlyLineEnds(behindReturn, token.begin)) {
    text_.ExtendLast(token.end);
    lineEnds_.AddFeed();
    return;
  }
  AddCharacter(kParagraphEnd, token);
  if (token.number == '\r') lineEnds_.AddReturn(token.end);
}

bool Parser::IsOnlyLineEnds(Offset begin, Offset end) const {
  const std::string_view gap = std::string_view(bytes_).substr(begin, end - begin);
  return gap.find_first_not_of("\r\n") == std::string_view::npos;
}

void Parser::ReadSymbol(const Token& token) {
  switch (token.number) {
    case '*':
      return head_.Star();
    case '\\':
    case '{':
    case '}':
      // Bytes like any other.
      AddByte(static_cast<unsigned char>(token.number), token);
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
  head_.Pass();
}

void Parser::ReadWord(const Token& token) {
  const WordEntry& entry = LookUp(token.word);
  const bool isCharacter = entry.word >= Word::kCharacter && entry.word <= Word::kUnicode;
  if (head_.IsStarred() && (!head_.IsFirst() || isCharacter)) Oddity();
  if (ReadCharacterWord(entry, token)) return;
  text_.WordComes();
  // In the middle of text, its data could be mistaken for words.
  if (entry.word == Word::kData) Oddity();
  if (head_.IsStarred() && head_.IsFirst() && HidesBehindStar(entry.word)) return SkipGroup();
  if (NamesColour(entry.word)) NoteColour(tables_.colours, token.number);
  switch (entry.word) {
    case Word::kData:
    case Word::kUnknown:
      marks_.Other();
      return;
    case Word::kCharacterSet:
    case Word::kAnsiCodePage:
    case Word::kDefaultFont:
      ReadCharacterSet(entry, token);
      break;
    default:
      break;
  }
  if (entry.word >= Word::kSkipped && entry.word <= Word::kAlternatives) {
    return ReadDestination(entry, token);
  }
  if (entry.word >= Word::kTabStop && entry.word <= Word::kShadingBack) {
    details_.Take(entry, token, tables_.colours, states_);
  }
  const AttributeChange change = ApplyStateWord(entry, token, tables_, states_);
  if (change == AttributeChange{}) {
    marks_.Other();
  } else {
    marks_.Word(change, token.end);
  }
}

bool Parser::ReadCharacterWord(const WordEntry& entry, const Token& token) {
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
      ReadUnicode(token);
      return true;
    default:
      return false;
  }
}

void Parser::AddByte(unsigned char byte, const Token& token) {
  marks_.Characters();
  text_.AddByte(byte, token.begin, token.end);
}

void Parser::AddCharacter(char32_t character, const Token& token, Origin::Kind kind) {
  marks_.Characters();
  text_.Add(character, token.begin, token.end, kind);
}

void Parser::ReadUnicode(const Token& token) {
  const bool isCharacter = text_.AddUnicode(token.number, token.begin, token.end);
  standIn_.Expect(states_.Now().look.fallback, isCharacter);
  if (isCharacter) {
    marks_.Characters();
  } else {
    marks_.Other();
  }
}

// A numbered code page overrides \mac and the like.
void Parser::ReadCharacterSet(const WordEntry& entry, const Token& token) {
  if (entry.word == Word::kDefaultFont) {
    tables_.defaultFont = token.number;
  } else if (entry.word == Word::kAnsiCodePage && token.number > 0) {
    tables_.pageIsNumbered = true;
    SetStandardPage(CodePage::Of(token.number));
  } else if (entry.word == Word::kCharacterSet && !tables_.pageIsNumbered) {
    SetStandardPage(CodePage::Of(entry.argument));
  }
}

void Parser::SetStandardPage(const CodePage& page) {
  tables_.standardPage = &page;
  SelectFont(tables_.defaultFont, tables_, states_);
}

}  // namespace quill::rtf
