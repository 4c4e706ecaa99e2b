// How the user's actions reach the program: one at a time, each one's effects shown before the
// next.
#pragma once

#include <functional>

#include "program/program.h"

namespace quill {

class Actions {
 public:
  // `show` updates the widgets from the model; `ended` runs once the program has ended.
  Actions(Program& program, std::function<void()> show, std::function<void()> ended);

  // Runs an action to its end. Does nothing while another one runs: what a widget reports while the
  // program writes to it, or behind a modal dialog, is not an action of the user. A bug ends the
  // process with a message, because no exception may cross the toolkit.
  void Do(const std::function<void(Program&)>& action);

  // A click on a button or a menu item. Actions that read or write files or search the text show
  // the waiting cursor.
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
