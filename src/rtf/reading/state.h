// The formatting in force while a file is read, and what braces save and restore of it.
//
// A hostile file opens a group every byte or two. Equal states are therefore stored once and told
// by a number, and groups that begin in the same state are counted, not stacked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "rtf/syntax/code_page.h"
#include "text/format.h"

namespace quill::rtf {

struct State {
  Attributes attributes;
  bool otherBold = false;  // of the run direction that is not in force
  CharacterLook look;
  ParagraphLook paragraph;
  const CodePage* page = nullptr;  // of the current font

  bool operator==(const State&) const = default;
};

class StateStack {
 public:
  // Formats of states are entered into the table, which must outlive the stack.
  StateStack(FormatTable& formats, const State& first);

  const State& Now() const { return now_; }
  // Each stores what differs; most words say what holds anyway.
  void Set(const State& next) { Store(now_, next); }
  void Set(const Attributes& next) { Store(now_.attributes, next); }
  void Set(const CharacterLook& next) { Store(now_.look, next); }
  void Set(const ParagraphLook& next) { Store(now_.paragraph, next); }
  void Set(const CodePage& next) { Store(now_.page, &next); }
  // The format of a character read now.
  FormatId Format();

  void Open();
  // A group must be open.
  void Close();
  std::size_t Depth() const { return depth_; }

 private:
  using StateId = std::uint32_t;
  struct Level {
    StateId state;
    std::uint32_t groups;  // that many groups, one in the other, began in this state
  };
  struct Hash {
    std::size_t operator()(const State& state) const;
  };

  template <class Part>
  void Store(Part& now, const std::type_identity_t<Part>& next);
  StateId Intern();

  static constexpr FormatId kNoFormat = ~FormatId{0};

  FormatTable& formats_;
  State now_;
  FormatId nowFormat_ = kNoFormat;
  bool changed_ = true;  // since now_ was entered as nowId_
  StateId nowId_ = 0;
  std::vector<State> states_;
  std::vector<FormatId> stateFormats_;
  std::unordered_map<State, StateId, Hash> ids_;
  std::vector<Level> levels_;
  std::size_t depth_ = 0;
};

template <class Part>
void StateStack::Store(Part& now, const std::type_identity_t<Part>& next) {
  if (next == now) return;
  now = next;
  changed_ = true;
  nowFormat_ = kNoFormat;
}

}  // namespace quill::rtf
