#include "rtf/reading/text_builder.h"

#include <algorithm>

#include "text/large_pages.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
bool IsHighHalf(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowHalf(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

// No file has more characters than bytes, so no array ever has to grow. Untouched memory costs
// nothing.
TextBuilder::TextBuilder(StateStack& states, std::size_t bytes) : states_(states), bytes_(bytes) {
  text_.reserve(bytes);
  formats_.Reserve(bytes);
  origins_.Reserve(bytes);
}

void TextBuilder::Add(char32_t character, Offset begin, Offset end, Origin::Kind kind) {
  Flush();
  if (character != 0) Put(character, begin, end, kind);
}

void TextBuilder::AddBytes(std::string_view bytes, Offset begin) {
  EndPair();
  const CodePage& page = *states_.Now().page;
  std::size_t at = 0;
  while (at < bytes.size()) {
    const auto here = static_cast<Offset>(begin + at);
    if (!sequence_.empty() || page.IsSymbol() || !IsAscii(bytes[at])) {
      AddByte(static_cast<unsigned char>(bytes[at]), here, here + 1);
      ++at;
      continue;
    }
    const auto* const end = std::find_if_not(bytes.begin() + at, bytes.end(), IsAscii);
    const std::size_t length = static_cast<std::size_t>(end - bytes.begin()) - at;
    PutAscii(bytes.substr(at, length), here);
    at += length;
  }
}

void TextBuilder::PutAscii(std::string_view bytes, Offset begin) {
  if (text_.size() >= nextLook_) LookAhead(begin);
  const std::size_t first = text_.size();
  text_.resize(first + bytes.size());
  std::copy(bytes.begin(), bytes.end(), text_.begin() + static_cast<std::ptrdiff_t>(first));
  formats_.Append(bytes.size(), states_.Format());
  origins_.AppendBytes(bytes.size(), begin);
}

// Asks for large pages as far as characters will fill them, judging by those read so far.
void TextBuilder::LookAhead(Offset read) {
  constexpr std::size_t kStep = std::size_t{1} << 17U;
  // A low guess, before there is anything to go by.
  const std::size_t expected = nextLook_ == 0 ? bytes_ / 4 : text_.size() * bytes_ / read;
  UseLargePages(text_.data(), expected * sizeof(char32_t));
  formats_.Expect(expected);
  origins_.Expect(expected);
  nextLook_ = text_.size() + kStep;
}

void TextBuilder::AddByte(unsigned char byte, Offset begin, Offset end) {
  EndPair();
  const CodePage& page = *states_.Now().page;
  if (!sequence_.empty()) {
    if (page.IsTrail(byte)) {
      sequence_ += static_cast<char>(byte);
      sequenceEnd_ = end;
      const auto lead = static_cast<unsigned char>(sequence_[0]);
      if (static_cast<int>(sequence_.size()) < page.SequenceLength(lead)) return;
      Put(page.Sequence(sequence_), sequenceBegin_, sequenceEnd_);
      sequence_.clear();
      return;
    }
    EndSequence();
  }
  if (page.SequenceLength(byte) > 1) {
    sequence_ = static_cast<char>(byte);
    sequenceBegin_ = begin;
    sequenceEnd_ = end;
  } else if (const char32_t character = page.Single(byte); character != 0) {
    Put(character, begin, end);
  }
}

bool TextBuilder::AddUnicode(std::int32_t number, Offset begin, Offset end) {
  EndSequence();
  const auto c = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
  if (IsLowHalf(c) && highHalf_ != 0) {
    const char32_t whole = 0x10000 + ((highHalf_ - 0xD800) << 10U) + (c - 0xDC00);
    highHalf_ = 0;
    if (pairIsSplit_) isWhole_ = false;
    Put(whole, pairBegin_, end);
    return true;
  }
  EndPair();
  if (IsHighHalf(c)) {
    highHalf_ = c;
    pairIsSplit_ = false;
    halfFormat_ = states_.Format();
    pairBegin_ = begin;
    pairEnd_ = end;
    return true;
  }
  if (IsLowHalf(c) || c > 0x10FFFF) {
    PutBroken(begin, end);
  } else if (c != 0) {
    Put(c, begin, end);
  }
  return c != 0;
}

void TextBuilder::ExtendUnicode(Offset end) {
  if (highHalf_ != 0) {
    pairEnd_ = end;
  } else {
    ExtendLast(end);
  }
}

void TextBuilder::WordComes() {
  EndSequence();
  pairIsSplit_ = true;
}

void TextBuilder::Flush() {
  EndSequence();
  EndPair();
}

void TextBuilder::EndSequence() {
  if (sequence_.empty()) return;
  sequence_.clear();
  PutBroken(sequenceBegin_, sequenceEnd_);
}

void TextBuilder::EndPair() {
  if (highHalf_ == 0) return;
  highHalf_ = 0;
  PutBroken(pairBegin_, pairEnd_);
  // Words may have changed the format since.
  formats_.Fill(Size() - 1, Size(), halfFormat_);
}

void TextBuilder::PutBroken(Offset begin, Offset end) {
  isWhole_ = false;
  Put(kReplacement, begin, end);
}

void TextBuilder::Put(char32_t character, Offset begin, Offset end, Origin::Kind kind) {
  if (text_.size() >= nextLook_) LookAhead(begin);
  text_ += character;
  formats_.Append(1, states_.Format());
  origins_.Append({begin, end - begin, kind});
}

}  // namespace quill::rtf
