// The reader goes through the tokens of a file once, with the formatting in force on a stack of
// its own. Characters go to a builder with their format and their bytes; destinations that hold no
// text are run over; whatever else there is needs no keeping, for a save copies the bytes.
#include "rtf/reader.h"

#include <new>
#include <utility>

#include "rtf/lexer.h"
#include "rtf/mark_groups.h"
#include "rtf/plain_text.h"
#include "rtf/state_words.h"
#include "rtf/text_builder.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

State FirstState() {
  State state;
  state.page = &CodePage::Of(1252);
  return state;
}

class Reader {
 public:
  // `known` holds the colours in force before the file's own table has been met.
  Reader(std::string bytes, ColourTable known)
      : bytes_(std::move(bytes)),
        lexer_(bytes_, static_cast<Offset>(bytes_.find('{'))),
        states_(formats_, FirstState()),
        text_(states_, bytes_.size()) {
    tables_.standardPage = states_.Now().page;
    tables_.colours = std::move(known);
  }

  Document Read();
  // Whether characters stand in front of the colour table.
  bool TableCameLate() const { return tableCameLate_; }

 private:
  bool Take(const Token& token);
  bool TakeAsFallback(const Token& token);
  void TakeText(const Token& token);
  void TakeHex(const Token& token);
  void TakeSymbol(const Token& token);
  void TakeWord(const Token& token);
  void TakeDestination(const WordEntry& entry, const Token& token);
  bool TakeCharacter(const WordEntry& entry, const Token& token);
  void TakeUnicode(const Token& token);
  void TakeCharacterSet(const WordEntry& entry, const Token& token);
  void Open(const Token& token);
  bool Close(const Token& token);
  Offset SkipToClose();
  void SkipGroup();
  void CloseSkipped();
  void CloseGroup();
  void TakeColourTable();
  void TakeObject(const Token& token);
  void TakePictureForm(const WordEntry& entry, const Token& token);
  bool IsOnlyLineEnds(Offset begin, Offset end) const;
  void EndHeader(const WordEntry* entry, const Token& token);
  void SetStandardPage(const CodePage& page);
  void AddCharacter(char32_t character, const Token& token, Origin::Kind kind = Origin::kPlain);

  std::string bytes_;
  Lexer lexer_;
  FormatTable formats_;
  StateStack states_;
  TextBuilder text_;
  Tables tables_;
  MarkGroupFinder marks_;

  Offset groupOpen_ = 0;      // of the innermost group's brace, while atHead_
  bool atHead_ = false;       // nothing but blanks stands behind the brace yet
  bool starred_ = false;      // a \* stands in front
  bool starredHead_ = false;  // and it is the first thing in its group
  bool skipNext_ = false;     // the next group gives way to the one behind it
  bool ended_ = false;        // the document's own group is closed
  std::uint32_t fallbackLeft_ = 0;
  bool braceIsNeeded_ = false;    // the next brace ends what stands in for a \u
  bool fallbackBelongs_ = false;  // what is left over belongs to the last character

  bool headerEnded_ = false;
  bool tableFound_ = false;
  bool tableCameLate_ = false;
  Offset tablePlace_ = 0;  // where a colour table can stand
  bool ansiPageGiven_ = false;

  // The form of a picture that came last, where the text then stood and where its group ended.
  int pictureForm_ = 0;
  std::size_t pictureFormAt_ = 0;
  Offset pictureEnd_ = 0;
};

Document Reader::Read() {
  Offset bodyEnd = 0;
  while (!ended_) {
    const Token token = lexer_.Next();
    bodyEnd = token.begin;
    if (token.kind == Token::kEnd) break;
    if (fallbackLeft_ > 0 && TakeAsFallback(token)) continue;
    if (!Take(token)) break;
  }
  text_.Flush();
  if (!headerEnded_) tablePlace_ = bodyEnd;
  if (!tables_.colours.present) tables_.colours.end = tablePlace_;
  const FormatId endFormat = states_.Format();
  Source source{std::move(bytes_), std::move(tables_.colours), marks_.Take(), bodyEnd};
  return Document(std::move(source), tables_.fonts.TakeFaces(), std::move(formats_),
                  text_.TakeText(), text_.TakeFormats(), text_.TakeOrigins(), endFormat);
}

// Returns false behind the end of the document's group.
bool Reader::Take(const Token& token) {
  if (skipNext_ && token.kind != Token::kIgnored && token.kind != Token::kOpen) {
    // No group follows, and none may come to follow by a mark on what does.
    skipNext_ = false;
    text_.OpenNext();
  }
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
bool Reader::TakeAsFallback(const Token& token) {
  if (token.kind == Token::kIgnored) return true;
  if (token.kind == Token::kOpen || token.kind == Token::kClose) {
    fallbackLeft_ = 0;
    braceIsNeeded_ = true;
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
  }
  if (fallbackBelongs_) text_.ExtendUnicode(end);
  return true;
}

void Reader::TakeText(const Token& token) {
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

void Reader::TakeHex(const Token& token) {
  if (token.number < 0) return marks_.Other();
  marks_.Characters();
  text_.AddByte(static_cast<unsigned char>(token.number), token.begin, token.end);
}

void Reader::TakeSymbol(const Token& token) {
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

void Reader::TakeWord(const Token& token) {
  const WordEntry& entry = LookUp(token.word);
  EndHeader(&entry, token);
  if (TakeCharacter(entry, token)) return;
  text_.WordComes();
  switch (entry.word) {
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

bool Reader::TakeCharacter(const WordEntry& entry, const Token& token) {
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

void Reader::AddCharacter(char32_t character, const Token& token, Origin::Kind kind) {
  marks_.Characters();
  text_.Add(character, token.begin, token.end, kind);
}

void Reader::TakeUnicode(const Token& token) {
  fallbackBelongs_ = text_.AddUnicode(token.number, token.begin, token.end);
  fallbackLeft_ = states_.Now().look.fallback;
  if (fallbackBelongs_) {
    marks_.Characters();
  } else {
    marks_.Other();
  }
}

void Reader::TakeCharacterSet(const WordEntry& entry, const Token& token) {
  if (entry.word == Word::kDefaultFont) {
    tables_.defaultFont = token.number;
  } else if (entry.word == Word::kAnsiCodePage && token.number > 0) {
    ansiPageGiven_ = true;
    SetStandardPage(CodePage::Of(token.number));
  } else if (entry.word == Word::kCharacterSet && !ansiPageGiven_) {
    SetStandardPage(CodePage::Of(entry.argument));
  }
}

void Reader::SetStandardPage(const CodePage& page) {
  tables_.standardPage = &page;
  SelectFont(tables_.defaultFont, tables_, states_);
}

void Reader::TakeDestination(const WordEntry& entry, const Token& token) {
  switch (entry.word) {
    case Word::kTransparent:
      marks_.Other();
      return;
    case Word::kAlternatives:
      marks_.Other();
      skipNext_ = true;
      return;
    case Word::kPictureForm:
      TakePictureForm(entry, token);
      return;
    case Word::kObject:
      TakeObject(token);
      return;
    case Word::kFontTable:
      tables_.fonts.Read(lexer_, *tables_.standardPage);
      CloseSkipped();
      if (text_.Size() == 0) tablePlace_ = lexer_.At();
      SelectFont(tables_.defaultFont, tables_, states_);
      return;
    case Word::kColourTable:
      TakeColourTable();
      return;
    case Word::kExpandedColourTable:
      tables_.colours.expandedEnd = SkipToClose();
      CloseSkipped();
      return;
    default:
      // A destination directly in the document's own group would hide all the rest of it.
      if (states_.Depth() > 1) SkipGroup();
      return;
  }
}

// The first table with colours in it is the file's; others are run over.
void Reader::TakeColourTable() {
  if (tableFound_) return SkipGroup();
  ReadColourTable(lexer_, tables_.colours);
  tableFound_ = !tables_.colours.entries.empty();
  tableCameLate_ = tableFound_ && text_.Size() > 0;
  CloseSkipped();
}

// A picture or an object, with all that its group holds, is one character.
void Reader::TakeObject(const Token& token) {
  const bool wholeGroup = atHead_ || (starred_ && starredHead_);
  Offset end = SkipToClose();
  if (wholeGroup && end < bytes_.size()) ++end;
  text_.Add(kObject, wholeGroup ? groupOpen_ : token.begin, end);
  if (wholeGroup) {
    marks_.GroupIsCharacter();
  } else {
    marks_.Other();
  }
  CloseGroup();
}

// A picture may stand there in two forms, one behind the other: together they are one character.
void Reader::TakePictureForm(const WordEntry& entry, const Token& token) {
  const bool second = pictureForm_ != 0 && pictureForm_ != entry.argument &&
                      pictureFormAt_ == text_.Size() && IsOnlyLineEnds(pictureEnd_, groupOpen_);
  if (!second) {
    TakeObject(token);
    pictureForm_ = entry.argument;
  } else {
    const Offset end = SkipToClose();
    text_.ExtendLast(std::min<Offset>(end + 1, static_cast<Offset>(bytes_.size())));
    marks_.GroupIsCharacter();
    CloseGroup();
    pictureForm_ = 0;
  }
  pictureFormAt_ = text_.Size();
  pictureEnd_ = lexer_.At();
}

bool Reader::IsOnlyLineEnds(Offset begin, Offset end) const {
  const std::string_view gap = std::string_view(bytes_).substr(begin, end - begin);
  return gap.find_first_not_of("\r\n") == std::string_view::npos;
}

void Reader::Open(const Token& token) {
  text_.Flush();
  if (std::exchange(skipNext_, false)) {
    marks_.Other();
    SkipToClose();
    return;
  }
  marks_.Open(token.begin, states_.Now().attributes);
  if (std::exchange(braceIsNeeded_, false)) marks_.Other();
  states_.Open();
  groupOpen_ = token.begin;
  atHead_ = true;
  starred_ = false;
}

bool Reader::Close(const Token& token) {
  text_.Flush();
  atHead_ = false;
  starred_ = false;
  if (std::exchange(braceIsNeeded_, false)) marks_.Other();
  marks_.Close(token.begin);
  // What is in force at the document's end stays, for what is typed there.
  if (states_.Depth() > 1) return states_.Close();
  ended_ = true;
  return false;
}

// Runs over the rest of the group, whose closing brace is the last token taken. Returns where that
// stands, or the end of the file where it is missing.
Offset Reader::SkipToClose() {
  Offset at = lexer_.At();
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = lexer_.Next();
    at = token.begin;
    if (token.kind == Token::kEnd) break;
    if (token.kind == Token::kOpen) ++depth;
    if (token.kind == Token::kClose) --depth;
    if (token.kind != Token::kWord) continue;
    const Word word = LookUp(token.word).word;
    if (word == Word::kColour || word == Word::kOtherColour || word == Word::kBackground) {
      NoteColour(tables_.colours, token.number);
    }
  }
  return at;
}

void Reader::SkipGroup() {
  SkipToClose();
  CloseSkipped();
}

// The group whose content was run over is closed.
void Reader::CloseSkipped() {
  marks_.Other();
  CloseGroup();
}

void Reader::CloseGroup() {
  text_.Flush();
  atHead_ = false;
  starred_ = false;
  if (states_.Depth() > 1) {
    states_.Close();
  } else {
    ended_ = true;
  }
}

// A colour table can stand behind the words with which a file begins.
void Reader::EndHeader(const WordEntry* entry, const Token& token) {
  if (headerEnded_ || states_.Depth() == 0) return;
  const Word word = entry != nullptr ? entry->word : Word::kUnknown;
  const bool header = word == Word::kHeader || word == Word::kCharacterSet ||
                      word == Word::kAnsiCodePage || word == Word::kDefaultFont ||
                      word == Word::kFallback;
  if (header) return;
  headerEnded_ = true;
  if (tablePlace_ == 0) tablePlace_ = token.begin;
}

// Where rich text begins: behind a byte order mark and blanks. npos for anything else.
std::size_t FindRichText(std::string_view bytes) {
  std::size_t at = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
  while (at < bytes.size() && std::string_view(" \t\r\n").find(bytes[at]) != std::string::npos)
    ++at;
  return bytes.substr(at).starts_with("{\\rtf") ? at : std::string_view::npos;
}

}  // namespace

std::optional<Document> Read(std::string bytes) try {
  if (bytes.size() > kLongestOrigin) return std::nullopt;
  if (FindRichText(bytes) == std::string_view::npos) {
    std::optional<std::string> richText = FromPlainText(bytes);
    if (!richText || richText->size() > kLongestOrigin) return std::nullopt;
    bytes = std::move(*richText);
  }
  Reader reader(std::move(bytes), {});
  Document document = reader.Read();
  if (!reader.TableCameLate()) return document;
  // A table behind the first characters holds for them too: read them with it.
  const Source& source = document.GetSource();
  return Reader(source.bytes, source.colours).Read();
} catch (const std::bad_alloc&) {
  return std::nullopt;
}

Document Blank() { return *Read(""); }

}  // namespace quill::rtf
