// Whoever carries out the actions of a scenario.
#pragma once

#include <string_view>

#include "program/program.h"

namespace quill::scenario {

// A user without a window system: every action goes straight to the program. A user of the real
// window overrides all actions with mouse and keyboard. Actions on controls out of reach, and all
// actions after the program has ended, do nothing.
class User {
 public:
  // The program must outlive its user.
  explicit User(Program& program) : program_(program) {}
  virtual ~User() = default;

  virtual void Click(CommandButton& button) { program_.Click(button); }
  virtual void Click(MenuItem& item) { program_.Click(item); }
  // The item must exist, and so must the row.
  virtual void ClickItem(ListBox& list, int item) { program_.ClickItem(list, item); }
  virtual void Pick(ComboBox& combo, int row) { program_.Pick(combo, row); }
  // The control is a text box, a combo box or the text.
  virtual void Type(Control& control, std::u32string_view text) { program_.Type(control, text); }
  // The control is a text box or a combo box.
  virtual void Enter(Control& control, std::u32string_view text) { program_.Enter(control, text); }
  virtual void Select(Position start, Position length) { program_.Select(start, length); }
  virtual void Close() { program_.Close(); }

 private:
  Program& program_;
};

}  // namespace quill::scenario
