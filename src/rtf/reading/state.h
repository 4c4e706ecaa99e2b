// The formatting in force while a file is read, which braces save and restore.
// A hostile file can open a group every byte or two. So equal states are stored once and numbered,
// and nested groups that begin in the same state are counted, not stacked.
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
  bool otherBold = false;  // of the run direction not in force
  CharacterLook look;
  ParagraphLook paragraph;
  const CodePage* page = nullptr;  // of the current font

  bool operator==(const State&) const = default;
};

class StateStack {
 public:
  // Adds the formats of states to the table, which must outlive the stack.
  StateStack(FormatTable& formats, const State& first);

  const State& Now() const { return now_; }
  // Nothing happens if nothing changes; most words repeat what is in force.
  void Set(const State& next) { Store(now_, next); }
  void Set(const Attributes& next) { Store(now_.attributes, next); }
  void Set(const CharacterLook& next) { Store(now_.look, next); }
  void Set(const ParagraphLook& next) { Store(now_.paragraph, next); }
  void Set(const CodePage& next) { Store(now_.page, &next); }
  ParagraphDetails& Details() { return formats_.Details(); }
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
    std::uint32_t groups;  // how many groups, nested directly, began in this state
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
