// Goes through the tokens of a rich text file and makes a document of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "rtf/reading/mark_groups.h"
#include "rtf/reading/state_words.h"
#include "rtf/reading/text_builder.h"
#include "rtf/syntax/lexer.h"
#include "text/document.h"

namespace quill::rtf {

// Reads one file, once. The formatting in force is on a stack of its own; characters go to a
// builder with their format and their bytes; destinations that hold no text are run over. Whatever
// else there is needs no keeping, for a save copies the bytes.
class TextReader {
 public:
  // `known` is the file's colour table where an earlier reading found it; else it is empty.
  TextReader(std::string bytes, ColourTable known);

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
  void TakeField();
  void TakeFieldInstruction();
  void TakeSkipped();
  void EndField(Offset end);
  void TakeLineEndByte(const Token& token);
  bool IsOnlyLineEnds(Offset begin, Offset end) const;
  void EndHeader(const WordEntry* entry, const Token& token) {
    if (!headerEnded_) LookForHeadersEnd(entry, token);
  }
  void LookForHeadersEnd(const WordEntry* entry, const Token& token);
  void SetStandardPage(const CodePage& page);
  void AddCharacter(char32_t character, const Token& token, Origin::Kind kind = Origin::kPlain);

  // Whether the word that is being taken stands first in its group, but for a \*.
  bool IsGroupsFirst() const { return atHead_ || (starred_ && starredHead_); }

  // The file holds something that no program writes.
  void Oddity() { wellFormed_ = false; }

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
  bool wellFormed_ = true;
  std::uint32_t fallbackLeft_ = 0;
  bool fallbackBelongs_ = false;  // what is left over belongs to the last character

  bool headerEnded_ = false;
  bool tableFound_ = false;
  bool tableCameLate_ = false;
  Offset tablePlace_ = 0;  // where a colour table can stand
  bool ansiPageGiven_ = false;

  Offset returnEnd_ = 0;         // of the last \'0d
  std::size_t loneReturns_ = 0;  // those without a \'0a

  // The innermost open field: it stands for a character where it names one and has no result.
  struct Field {
    std::size_t depth = 0;  // 0 where none is open
    Offset begin = 0;
    std::size_t textSize = 0;
    std::string_view instruction;
    MarkGroupFinder::Place marks;
  };
  Field field_;

  // The form of a picture that came last, where the text then stood and where its group ended.
  int pictureForm_ = 0;
  std::size_t pictureFormAt_ = 0;
  Offset pictureEnd_ = 0;
};

}  // namespace quill::rtf
