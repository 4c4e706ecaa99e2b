// Groups that hold something else than text: tables, pictures, notes, and what nobody knows.
#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "rtf/reading/text_reader.h"
#include "rtf/syntax/symbol_field.h"
#include "rtf/syntax/words.h"
#include "text/unicode.h"

namespace quill::rtf {

void TextReader::TakeDestination(const WordEntry& entry, const Token& token) {
  switch (entry.word) {
    case Word::kTransparent:
      marks_.Other();
      return;
    case Word::kField:
      TakeField();
      return;
    case Word::kFieldInstruction:
      TakeFieldInstruction();
      return;
    case Word::kAlternatives:
      skipNext_ = IsGroupsFirst();
      marks_.Other();
      return;
    case Word::kPictureForm:
      TakePictureForm(entry, token);
      return;
    case Word::kObject:
      TakeObject(token);
      return;
    case Word::kFontTable:
      tables_.fonts.Read(lexer_, *tables_.standardPage, states_.Now().look.fallback);
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
      TakeSkipped();
      return;
  }
}

void TextReader::TakeSkipped() {
  if (states_.Depth() > 1) return SkipGroup();
  // A destination directly in the document's own group would hide all the rest of it.
  Oddity();
}

// The first table with colours in it is the file's; others are run over.
void TextReader::TakeColourTable() {
  if (tableFound_) {
    Oddity();
    return SkipGroup();
  }
  const bool whole = ReadColourTable(lexer_, tables_.colours);
  tableFound_ = whole && !tables_.colours.entries.empty();
  tableCameLate_ = tableFound_ && text_.Size() > 0;
  if (tableCameLate_ || !tableFound_) Oddity();
  CloseSkipped();
}

// A picture or an object, with all that its group holds, is one character.
void TextReader::TakeObject(const Token& token) {
  const bool wholeGroup = IsGroupsFirst();
  const Offset close = SkipToClose();
  const Offset end = wholeGroup && close < bytes_.size() ? close + 1 : close;
  text_.Add(kObject, wholeGroup ? groupOpen_ : token.begin, end);
  if (wholeGroup) {
    marks_.GroupIsCharacter();
  } else {
    marks_.Characters();
    marks_.Close(close);
    Oddity();
  }
  CloseGroup();
}

void TextReader::TakeField() {
  field_ = {};
  if (IsGroupsFirst()) {
    field_ = {states_.Depth(), groupOpen_, text_.Size(), {}, marks_.Here()};
  }
  marks_.Other();
}

void TextReader::TakeFieldInstruction() {
  const Offset begin = lexer_.At();
  const bool ofField = field_.depth > 0 && states_.Depth() == field_.depth + 1;
  TakeSkipped();
  if (ofField) field_.instruction = std::string_view(bytes_).substr(begin, lexer_.At() - begin);
}

// A symbol with all of its field is one character. The field's group is closed already: its look is
// that of the place, so that characters can be typed beside it.
void TextReader::EndField(Offset end) {
  Field field = std::exchange(field_, {});
  if (text_.Size() != field.textSize) return;
  const std::optional<SymbolField> symbol = ReadSymbolField(field.instruction);
  if (!symbol) return;
  const bool symbolFont =
      symbol->font.empty() ? states_.Now().page->IsSymbol() : tables_.fonts.IsSymbol(symbol->font);
  const char32_t character = CharacterOf(*symbol, *tables_.standardPage, symbolFont);
  if (character == 0) return;
  text_.Add(character, field.begin, end);
  marks_.GoBack(std::move(field.marks));
  marks_.GroupIsCharacter();
}

// A picture may stand there in two forms, one behind the other: together they are one character.
void TextReader::TakePictureForm(const WordEntry& entry, const Token& token) {
  const bool second = IsGroupsFirst() && pictureForm_ != 0 && pictureForm_ != entry.argument &&
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

bool TextReader::IsOnlyLineEnds(Offset begin, Offset end) const {
  const std::string_view gap = std::string_view(bytes_).substr(begin, end - begin);
  return gap.find_first_not_of("\r\n") == std::string_view::npos;
}

// Runs over the rest of the group, whose closing brace is the last token taken. Returns where that
// stands, or the end of the file where it is missing.
Offset TextReader::SkipToClose() {
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

void TextReader::SkipGroup() {
  SkipToClose();
  CloseSkipped();
}

// The group whose content was run over is closed.
void TextReader::CloseSkipped() {
  marks_.Other();
  CloseGroup();
}

void TextReader::CloseGroup() {
  text_.Flush();
  atHead_ = false;
  starred_ = false;
  if (states_.Depth() <= field_.depth) field_ = {};
  if (states_.Depth() > 1) {
    states_.Close();
  } else {
    ended_ = true;
  }
}

// A colour table can stand behind the words with which a file begins.
void TextReader::LookForHeadersEnd(const WordEntry* entry, const Token& token) {
  if (states_.Depth() == 0) return;
  const Word word = entry != nullptr ? entry->word : Word::kUnknown;
  const bool header = word == Word::kHeader || word == Word::kCharacterSet ||
                      word == Word::kAnsiCodePage || word == Word::kDefaultFont ||
                      word == Word::kFallback;
  if (header) return;
  headerEnded_ = true;
  // The word with which the file begins stays where it is, whatever it is.
  const bool first = bytes_[token.begin - 1] == '{' && text_.Size() == 0 && states_.Depth() == 1;
  if (tablePlace_ == 0) tablePlace_ = first && token.kind == Token::kWord ? token.end : token.begin;
}

}  // namespace quill::rtf
