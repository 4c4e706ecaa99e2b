// What the parser remembers from one token to the next.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "rtf/reading/mark_groups.h"

namespace quill::rtf {

// The innermost group's opening brace, and whether anything but a \* has followed it.
class GroupHead {
 public:
  void Open(Offset brace) {
    brace_ = brace;
    isFirst_ = true;
    starred_ = false;
  }
  void Star() { starred_ = true; }
  // Anything else has been read.
  void Pass() { isFirst_ = starred_ = false; }

  // Whether the current token is the first in its group, a \* apart.
  bool IsFirst() const { return isFirst_; }
  // Whether a \* precedes it.
  bool IsStarred() const { return starred_; }
  // Offset of the group's brace; valid while IsFirst.
  Offset Brace() const { return brace_; }

 private:
  Offset brace_ = 0;
  bool isFirst_ = false;
  bool starred_ = false;
};

// The characters after a \u that stand in for it in readers without Unicode.
class StandIn {
 public:
  // That many will follow. They belong to the \u if that is a character.
  void Expect(std::uint32_t characters, bool belong) {
    left_ = characters;
    belong_ = belong;
  }
  void End() { left_ = 0; }
  // Of that many characters, returns how many are still stand-ins, and counts them off.
  std::uint32_t Pass(std::uint32_t characters) {
    const std::uint32_t passed = std::min(left_, characters);
    left_ -= passed;
    return passed;
  }

  bool IsExpected() const { return left_ > 0; }
  bool Belongs() const { return belong_; }

 private:
  std::uint32_t left_ = 0;
  bool belong_ = false;
};

// The end of the header words and fonts, where a colour table can be inserted.
class Header {
 public:
  void EndAt(Offset place) {
    ended_ = true;
    end_ = place;
  }

  bool HasEnded() const { return ended_; }
  Offset End() const { return end_; }

 private:
  bool ended_ = false;
  Offset end_ = 0;
};

// Carriage returns and line feeds written as \'hh.
class LineEndBytes {
 public:
  void AddReturn(Offset end) {
    returnEnd_ = end;
    ++lone_;
  }
  // A line feed completes the last return.
  void AddFeed() { --lone_; }

  // The end of the last return; 0 if there was none.
  Offset ReturnEnd() const { return returnEnd_; }
  bool HasLoneReturn() const { return lone_ > 0; }

 private:
  Offset returnEnd_ = 0;
  std::size_t lone_ = 0;
};

// Which of its two forms the last picture had.
class PictureForms {
 public:
  // A group in that form ended at `end`, after that many characters of text.
  void Add(int form, std::size_t characters, Offset end) {
    form_ = form;
    characters_ = characters;
    end_ = end;
  }
  void Clear() { form_ = 0; }

  // Whether a group in that form is the last picture again, provided that only line ends lie
  // between.
  bool IsPair(int form, std::size_t characters) const {
    return form_ != 0 && form_ != form && characters_ == characters;
  }
  Offset End() const { return end_; }

 private:
  int form_ = 0;
  std::size_t characters_ = 0;
  Offset end_ = 0;
};

// An open field. It becomes a character if its instruction names one and it has no result.
struct Field {
  std::size_t depth = 0;  // of its group; 0 if no field is open
  Offset begin = 0;
  std::size_t characters = 0;  // of text in front of it
  std::string_view instruction;
  MarkGroupFinder::Place marks;
};

}  // namespace quill::rtf
