// Bytes of a file's character sets to code points.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quill::rtf {

// One code page. A byte is a character of its own or leads a sequence.
class CodePage {
 public:
  // The number that files use for the symbol character set: its bytes are the characters U+F000
  // plus the byte.
  static constexpr int kSymbol = 42;
  static constexpr int kUtf8 = 65001;

  // The page of that number. Pages that are not known are taken for Windows-1252. Pages live until
  // the end of the thread.
  static const CodePage& Of(int number);

  int Number() const { return number_; }
  bool IsSymbol() const { return number_ == kSymbol; }
  // How many bytes a sequence has that begins with this byte; 1 for a character of its own.
  int SequenceLength(unsigned char lead) const { return lengths_[lead]; }
  char32_t Single(unsigned char byte) const { return singles_[byte]; }
  // Whether a byte can go on with a sequence at its second or later place.
  bool IsTrail(unsigned char byte) const;
  // The character of a whole sequence; U+FFFD where it has none.
  char32_t Sequence(const std::string& bytes) const;

 private:
  explicit CodePage(int number);
  void FillSymbol();
  void FillUtf8();
  void FillFromConverter();

  int number_;
  std::array<std::uint8_t, 256> lengths_{};
  std::array<char32_t, 256> singles_{};
  mutable std::vector<char32_t> pairs_;  // what two-byte sequences were found to be
};

// The code page of a font's \fcharset; 0 for the character set that means the document's own.
int CodePageOfCharset(int charset);

}  // namespace quill::rtf
