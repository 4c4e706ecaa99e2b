// What the parser remembers from one token to the next.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "rtf/reading/mark_groups.h"

namespace quill::rtf {

// Where the innermost group was opened, and whether anything but a \* has come in it.
class GroupHead {
 public:
  void Open(Offset brace) {
    brace_ = brace;
    isFirst_ = true;
    starred_ = false;
  }
  void Star() { starred_ = true; }
  // Anything else has come.
  void Pass() { isFirst_ = starred_ = false; }

  // Whether the token that is being read stands first in its group, but for a \*.
  bool IsFirst() const { return isFirst_; }
  // Whether a \* stands in front of it.
  bool IsStarred() const { return starred_; }
  // Of the group's brace, while IsFirst.
  Offset Brace() const { return brace_; }

 private:
  Offset brace_ = 0;
  bool isFirst_ = false;
  bool starred_ = false;
};

// What stands in for a \u in readers without Unicode.
class StandIn {
 public:
  // So many characters will stand in; they belong to the \u if that is a character.
  void Expect(std::uint32_t characters, bool belong) {
    left_ = characters;
    belong_ = belong;
  }
  void End() { left_ = 0; }
  // Passes up to that many characters. Returns how many of them stand in.
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

// Where a colour table can stand: behind the words with which a file begins, and its fonts.
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

// Carriage returns and line feeds that are written as bytes.
class LineEndBytes {
 public:
  void AddReturn(Offset end) {
    returnEnd_ = end;
    ++lone_;
  }
  // A line feed goes with the last return.
  void AddFeed() { --lone_; }

  // Behind the last return; 0 where there was none.
  Offset ReturnEnd() const { return returnEnd_; }
  bool HasLoneReturn() const { return lone_ > 0; }

 private:
  Offset returnEnd_ = 0;
  std::size_t lone_ = 0;
};

// The form in which the last picture was written, where a file has two of each.
class PictureForms {
 public:
  // A group in that form ended at `end`, in front of which the text had so many characters.
  void Add(int form, std::size_t characters, Offset end) {
    form_ = form;
    characters_ = characters;
    end_ = end;
  }
  void Clear() { form_ = 0; }

  // Whether a group in that form is the same picture once more, if only line ends stand between
  // the two.
  bool IsPair(int form, std::size_t characters) const {
    return form_ != 0 && form_ != form && characters_ == characters;
  }
  Offset End() const { return end_; }

 private:
  int form_ = 0;
  std::size_t characters_ = 0;
  Offset end_ = 0;
};

// An open field: it stands for a character where its instruction names one and it has no result.
struct Field {
  std::size_t depth = 0;  // of its group; 0 for no field
  Offset begin = 0;
  std::size_t characters = 0;  // in front of it
  std::string_view instruction;
  MarkGroupFinder::Place marks;
};

}  // namespace quill::rtf
