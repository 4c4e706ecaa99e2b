// A user of the program who acts at random, by a seed: clicks, picks, types, selects, answers
// dialogs. The actions are written down as a scenario that the player can play.
#pragma once

#include <cstdint>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "program/program.h"
#include "support/fakes.h"

namespace quill::test {

// Numbers from a seed, the same on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}
  // From 0 up to but not including the bound, which must be at least 1.
  int Below(int bound) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(bound)); }
  bool Percent(int chance) { return Below(100) < chance; }
  template <class Items>
  const auto& OneOf(const Items& items) {
    return items[static_cast<std::size_t>(Below(static_cast<int>(std::size(items))))];
  }

 private:
  std::mt19937 engine_;
};

// Answers every dialog, and writes the answer down.
class RandomDialogs final : public Dialogs {
 public:
  RandomDialogs(Dice& dice, const MemoryDisk& disk, std::ostream& scenario)
      : dice_(dice), disk_(disk), scenario_(scenario) {}

  // The answers of the last action: the path that was opened, and the button of the message box;
  // empty where there was none.
  std::u32string opened;
  std::optional<Button> button;
  bool cancelled = false;
  int saveFailures = 0;

  std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                         const std::u32string& filter) override;
  std::optional<std::u32string> ShowSave(const std::u32string& title, const std::u32string& filter,
                                         const std::u32string& proposed) override;
  Button MsgBox(const MessageBox& box) override;

 private:
  void Write(std::string_view answer) { scenario_ << "answer " << answer << std::endl; }
  std::optional<std::u32string> Cancel();

  Dice& dice_;
  const MemoryDisk& disk_;
  std::ostream& scenario_;
};

class RandomUser {
 public:
  RandomUser(Program& program, Dice& dice, std::ostream& scenario)
      : program_(program), dice_(dice), scenario_(scenario) {}

  // One action, chosen but not yet done.
  struct Action {
    Control* control = nullptr;
    std::string step;  // of a scenario
    int number = 0;    // item or row; start of a selection
    int length = 0;    // of a selection
    std::u32string text = {};
    enum class Kind { kClick, kClickItem, kPick, kType, kEnter, kSelect, kClose } kind = {};
  };
  // Mostly one that is in reach.
  Action Choose();
  // In the scenario, answers precede the step; a note says what broke off.
  void Do(const Action& action);

 private:
  Control& ChooseControl();
  Action ChooseSelection();
  Action ChooseFor(Control& control);
  std::u32string SomeText();

  Program& program_;
  Dice& dice_;
  std::ostream& scenario_;
};

}  // namespace quill::test
