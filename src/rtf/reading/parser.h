// Parses rich text into a document.
#pragma once

#include <cstddef>
#include <string>

#include "rtf/reading/detail_words.h"
#include "rtf/reading/mark_groups.h"
#include "rtf/reading/parser_memory.h"
#include "rtf/reading/state_words.h"
#include "rtf/reading/text_builder.h"
#include "rtf/syntax/lexer.h"
#include "text/document.h"

namespace quill::rtf {

// Separates a file's text from everything else. Formatting in force is kept on a stack, characters
// go to a builder with their format and the bytes they came from, and groups without text are
// skipped. Nothing else is kept, since a save copies the bytes.
class Parser {
 public:
  // `known` is the file's colour table if an earlier parse found it, or else empty.
  Parser(std::string bytes, ColourTable known);

  // Call it once.
  Document Parse();
  // Whether characters stand in front of the colour table.
  bool TableCameLate() const { return colourTable_ == Found::kLate; }

 private:
  enum class Found { kNo, kInTime, kLate };

  // Tokens.
  void Read(const Token& token);
  void CheckPlace(const Token& token);
  void PassHeader(const Token& token);
  bool ReadStandIn(const Token& token);
  void ReadText(const Token& token);
  void ReadHex(const Token& token);
  void ReadLineEndByte(const Token& token);
  void ReadSymbol(const Token& token);
  void ReadWord(const Token& token);
  bool ReadCharacterWord(const WordEntry& entry, const Token& token);
  void ReadUnicode(const Token& token);
  void ReadCharacterSet(const WordEntry& entry, const Token& token);
  void SetStandardPage(const CodePage& page);
  void AddByte(unsigned char byte, const Token& token);
  void AddCharacter(char32_t character, const Token& token, Origin::Kind kind = Origin::kPlain);
  bool IsOnlyLineEnds(Offset begin, Offset end) const;
  // Notes that the file holds something that no program writes.
  void Oddity() { wellFormed_ = false; }

  // Groups, in destinations.cpp.
  void OpenGroup(const Token& token);
  void CloseGroup(const Token& token);
  void LeaveGroup();
  void ReadDestination(const WordEntry& entry, const Token& token);
  void ReadFontTable();
  void ReadColourTable();
  void ReadObject(const Token& token);
  void ReadPictureForm(const WordEntry& entry, const Token& token);
  void OpenField();
  void ReadFieldInstruction();
  void CloseField(Offset end);
  void ReadSkipped();
  Offset SkipToClose();
  void SkipGroup();
  void EndSkipped();

  std::string bytes_;
  Lexer lexer_;
  FormatTable formats_;
  StateStack states_;
  TextBuilder text_;
  Tables tables_;
  DetailWords details_;
  MarkGroupFinder marks_;

  Header header_;
  GroupHead head_;
  StandIn standIn_;
  LineEndBytes lineEnds_;
  PictureForms pictureForms_;
  Field field_;  // the innermost
  Found colourTable_ = Found::kNo;
  bool skipNext_ = false;  // \upr: the next group gives way to the one after it
  bool ended_ = false;     // the document's own group is closed
  bool wellFormed_ = true;
};

}  // namespace quill::rtf
