// Collects the characters of a text while a file is read, each with its format and its bytes.
// The first bytes of a multi-byte character and the first half of a surrogate pair wait here for
// the rest. If something else comes, they become U+FFFD.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rtf/reading/state.h"
#include "text/format_numbers.h"
#include "text/origin_list.h"
#include "text/source.h"

namespace quill::rtf {

class TextBuilder {
 public:
  // The states must outlive the builder. `bytes` is the size of the file.
  TextBuilder(StateStack& states, std::size_t bytes);

  // A character by itself. NUL is none.
  void Add(char32_t character, Offset begin, Offset end, Origin::Kind kind = Origin::kPlain);
  // Literal bytes of the file, from `begin` on.
  void AddBytes(std::string_view bytes, Offset begin);
  // One byte, however the file spells it between the two offsets.
  void AddByte(unsigned char byte, Offset begin, Offset end);
  // The number of a \u word. Returns whether it is a character or half of one.
  bool AddUnicode(std::int32_t number, Offset begin, Offset end);
  // Extends the last \u to `end`, over what stands in for it in readers without Unicode.
  void ExtendUnicode(Offset end);
  // Extends the last character to `end`.
  void ExtendLast(Offset end) { origins_.ExtendLast(end); }

  // Whether a multi-byte character is incomplete so far.
  bool AwaitsByte() const { return !sequence_.empty(); }
  // A word other than \u follows: an incomplete sequence will not be completed.
  void WordComes();
  // A brace or a character follows: nothing that waits will be completed.
  void Flush();

  std::size_t Size() const { return text_.size(); }
  // Whether no character was incomplete, or had its halves separated by words.
  bool IsWhole() const { return isWhole_; }
  std::u32string TakeText() { return std::move(text_); }
  FormatNumbers TakeFormats() { return std::move(formats_); }
  OriginList TakeOrigins() { return std::move(origins_); }

 private:
  void Put(char32_t character, Offset begin, Offset end, Origin::Kind kind = Origin::kPlain);
  void PutAscii(std::string_view bytes, Offset begin);
  void LookAhead(Offset read);
  void EndSequence();
  void EndPair();
  void PutBroken(Offset begin, Offset end);

  StateStack& states_;
  std::u32string text_;
  FormatNumbers formats_;
  OriginList origins_;
  std::size_t bytes_;         // of the file
  std::size_t nextLook_ = 0;  // at that many characters, guess again how many will come

  std::string sequence_;  // the first bytes of an incomplete character
  Offset sequenceBegin_ = 0;
  Offset sequenceEnd_ = 0;

  bool isWhole_ = true;
  char32_t highHalf_ = 0;     // of a pair, or 0
  bool pairIsSplit_ = false;  // words follow the high half
  FormatId halfFormat_ = 0;   // of the high half
  Offset pairBegin_ = 0;
  Offset pairEnd_ = 0;
};

}  // namespace quill::rtf
