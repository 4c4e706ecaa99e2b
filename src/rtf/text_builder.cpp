#include "rtf/text_builder.h"

#include <algorithm>

#include "text/unicode.h"

namespace quill::rtf {
namespace {

bool IsAscii(char byte) { return static_cast<unsigned char>(byte) < 0x80; }
bool IsHighHalf(char32_t c) { return c >= 0xD800 && c <= 0xDBFF; }
bool IsLowHalf(char32_t c) { return c >= 0xDC00 && c <= 0xDFFF; }

}  // namespace

TextBuilder::TextBuilder(StateStack& states, std::size_t bytes) : states_(states) {
  // Dense files have nearly a character a byte, and grow once from here; memory that stays
  // untouched costs nothing.
  const std::size_t expected = bytes / 2 + 16;
  text_.reserve(expected);
  formats_.reserve(expected);
  origins_.reserve(expected);
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
    if (!sequence_.empty() || reachesAt_ == here || page.IsSymbol() || !IsAscii(bytes[at])) {
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
  const std::size_t first = text_.size();
  text_.resize(first + bytes.size());
  origins_.resize(first + bytes.size());
  formats_.resize(first + bytes.size(), states_.Format());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    text_[first + i] = static_cast<unsigned char>(bytes[i]);
    origins_[first + i] = {static_cast<Offset>(begin + i), 1, Origin::kPlain};
  }
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
    if (pairIsSplit_) splitPairs_.push_back({pairBegin_, pairEnd_, begin});
    Put(whole, pairBegin_, end, pairIsSplit_ ? Origin::kSplit : Origin::kPlain);
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

void TextBuilder::ReachBack(Offset from, Offset at) {
  reachesFrom_ = from;
  reachesAt_ = at;
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
  // Words may have come since.
  formats_.back() = halfFormat_;
}

void TextBuilder::PutBroken(Offset begin, Offset end) {
  isWhole_ = false;
  Put(kReplacement, begin, end);
}

void TextBuilder::Put(char32_t character, Offset begin, Offset end, Origin::Kind kind) {
  text_ += character;
  formats_.push_back(states_.Format());
  if (begin == reachesAt_) begin = reachesFrom_;
  origins_.push_back({begin, end - begin, kind});
}

}  // namespace quill::rtf
