// The way from the user's hands to the program: one action at a time, and what came of it is shown
// before the next.
#pragma once

#include <functional>

#include "program/program.h"

namespace quill {

class Actions {
 public:
  // `show` brings the widgets up to the model, `ended` runs once the program has ended.
  Actions(Program& program, std::function<void()> show, std::function<void()> ended);

  // Runs an action to its end. Does nothing while another one runs: what a widget tells while the
  // program writes to it, or behind a modal dialog, is no action of the user. A bug ends the
  // process with a message, as an exception may not cross the toolkit.
  void Do(const std::function<void(Program&)>& action);

  // A click on a button or a menu item. What reads or writes files or searches the text shows the
  // waiting cursor.
  void Click(CommandButton& button);
  void Click(MenuItem& item);

  bool Running() const { return running_; }
  Program& TheProgram() const { return program_; }

 private:
  Program& program_;
  std::function<void()> show_;
  std::function<void()> ended_;
  bool running_ = false;
};

}  // namespace quill
