// Decodes the character sets of a file.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quill::rtf {

// One code page. A byte is a character of its own or leads a sequence.
class CodePage {
 public:
  // The number that files use for symbol fonts. Bytes decode to U+F000 plus the byte.
  static constexpr int kSymbol = 42;
  static constexpr int kUtf8 = 65001;

  // The page with that number; Windows-1252 for unknown ones. Pages live as long as the thread.
  static const CodePage& Of(int number);

  int Number() const { return number_; }
  bool IsSymbol() const { return number_ == kSymbol; }
  // Length of the sequence that starts with this byte; 1 if the byte is a character of its own.
  int SequenceLength(unsigned char lead) const { return lengths_[lead]; }
  char32_t Single(unsigned char byte) const { return singles_[byte]; }
  // Whether a byte can be the second or a later one of a sequence.
  bool IsTrail(unsigned char byte) const;
  // The character of a complete sequence; U+FFFD if it has none.
  char32_t Sequence(const std::string& bytes) const;

 private:
  explicit CodePage(int number);
  void FillSymbol();
  void FillUtf8();
  void FillFromConverter();

  int number_;
  std::array<std::uint8_t, 256> lengths_{};
  std::array<char32_t, 256> singles_{};
  mutable std::vector<char32_t> pairs_;  // decoded two-byte sequences, 0 if not decoded yet
};

// The code page of a font's \fcharset; 0 for the one that means the document's own.
int CodePageOfCharset(int charset);

}  // namespace quill::rtf
