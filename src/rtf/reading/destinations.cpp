// Groups, and what they hold instead of text: tables, pictures, notes, the unknown.
#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "rtf/reading/parser.h"
#include "rtf/syntax/symbol_field.h"
#include "rtf/syntax/words.h"
#include "text/unicode.h"

namespace quill::rtf {

void Parser::OpenGroup(const Token& token) {
  text_.Flush();
  if (std::exchange(skipNext_, false)) {
    marks_.Other();
    SkipToClose();
    return;
  }
  marks_.Open(token.begin, states_.Now().attributes);
  states_.Open();
  head_.Open(token.begin);
}

void Parser::CloseGroup(const Token& token) {
  marks_.Close(token.begin);
  if (states_.Depth() == field_.depth) return CloseField(token.end);
  LeaveGroup();
}

// Call after the group's closing brace, whether its content was read or skipped.
void Parser::LeaveGroup() {
  text_.Flush();
  head_.Pass();
  if (states_.Depth() <= field_.depth) field_ = {};
  // The formatting at the document's end stays in force for what is typed there.
  if (states_.Depth() > 1) {
    states_.Close();
  } else {
    ended_ = true;
  }
}

void Parser::ReadDestination(const WordEntry& entry, const Token& token) {
  switch (entry.word) {
    case Word::kTransparent:
      return marks_.Other();
    case Word::kField:
      return OpenField();
    case Word::kFieldInstruction:
      return ReadFieldInstruction();
    case Word::kAlternatives:
      skipNext_ = head_.IsFirst();
      return marks_.Other();
    case Word::kPictureForm:
      return ReadPictureForm(entry, token);
    case Word::kObject:
      return ReadObject(token);
    case Word::kFontTable:
      return ReadFontTable();
    case Word::kColourTable:
      return ReadColourTable();
    case Word::kExpandedColourTable:
      tables_.colours.expandedEnd = SkipToClose();
      return EndSkipped();
    default:
      return ReadSkipped();
  }
}

void Parser::ReadSkipped() {
  if (states_.Depth() > 1) return SkipGroup();
  // Skipping a destination in the document's own group would hide the rest of the text.
  Oddity();
}

void Parser::ReadFontTable() {
  tables_.fonts.Read(lexer_, *tables_.standardPage, states_.Now().look.fallback);
  EndSkipped();
  if (text_.Size() == 0) header_.EndAt(lexer_.At());
  SelectFont(tables_.defaultFont, tables_, states_);
}

// The first table with any colours is the file's; others are skipped.
void Parser::ReadColourTable() {
  if (colourTable_ != Found::kNo) {
    Oddity();
    return SkipGroup();
  }
  const bool whole = rtf::ReadColourTable(lexer_, tables_.colours);
  if (whole && !tables_.colours.entries.empty()) {
    colourTable_ = text_.Size() > 0 ? Found::kLate : Found::kInTime;
  }
  if (colourTable_ != Found::kInTime) Oddity();
  EndSkipped();
}

// A picture or object is one character, with everything in its group.
void Parser::ReadObject(const Token& token) {
  const bool wholeGroup = head_.IsFirst();
  const Offset close = SkipToClose();
  const Offset end = wholeGroup && close < bytes_.size() ? close + 1 : close;
  text_.Add(kObject, wholeGroup ? head_.Brace() : token.begin, end);
  if (wholeGroup) {
    marks_.GroupIsCharacter();
  } else {
    marks_.Characters();
    marks_.Close(close);
    Oddity();
  }
  LeaveGroup();
}

// A picture may be written in two forms, one after the other: together they are one character.
void Parser::ReadPictureForm(const WordEntry& entry, const Token& token) {
  const bool second = head_.IsFirst() && pictureForms_.IsPair(entry.argument, text_.Size()) &&
                      IsOnlyLineEnds(pictureForms_.End(), head_.Brace());
  if (!second) {
    ReadObject(token);
    return pictureForms_.Add(entry.argument, text_.Size(), lexer_.At());
  }
  const Offset close = SkipToClose();
  text_.ExtendLast(std::min<Offset>(close + 1, static_cast<Offset>(bytes_.size())));
  marks_.GroupIsCharacter();
  LeaveGroup();
  pictureForms_.Clear();
}

void Parser::OpenField() {
  field_ = {};
  if (head_.IsFirst()) field_ = {states_.Depth(), head_.Brace(), text_.Size(), {}, marks_.Here()};
  marks_.Other();
}

void Parser::ReadFieldInstruction() {
  const Offset begin = lexer_.At();
  const bool ofField = field_.depth > 0 && states_.Depth() == field_.depth + 1;
  ReadSkipped();
  if (ofField) field_.instruction = std::string_view(bytes_).substr(begin, lexer_.At() - begin);
}

// A symbol is one character, with all of its field. It takes its look from outside the group, so
// that characters can be typed beside it.
void Parser::CloseField(Offset end) {
  Field field = std::exchange(field_, {});
  LeaveGroup();
  if (text_.Size() != field.characters) return;
  const std::optional<SymbolField> symbol = ReadSymbolField(field.instruction);
  if (!symbol) return;
  const bool symbolFont =
      symbol->font.empty() ? states_.Now().page->IsSymbol() : tables_.fonts.IsSymbol(symbol->font);
  const char32_t character = CharacterOf(*symbol, *tables_.standardPage, symbolFont);
  if (character == 0) return;
  text_.Add(character, field.begin, end);
  marks_.GroupWasCharacter(std::move(field.marks));
}

// Skips the rest of the group, closing brace included. Returns the offset of that brace, or the end
// of the file if it is missing.
Offset Parser::SkipToClose() {
  Offset at = lexer_.At();
  for (std::size_t depth = 1; depth > 0;) {
    const Token token = lexer_.Next();
    at = token.begin;
    if (token.kind == Token::kEnd) break;
    if (token.kind == Token::kOpen) ++depth;
    if (token.kind == Token::kClose) --depth;
    if (token.kind != Token::kWord) continue;
    if (NamesColour(LookUp(token.word).word)) NoteColour(tables_.colours, token.number);
  }
  return at;
}

void Parser::SkipGroup() {
  SkipToClose();
  EndSkipped();
}

// Call after skipping a group that holds no characters.
void Parser::EndSkipped() {
  marks_.Other();
  LeaveGroup();
}

}  // namespace quill::rtf
