// Plays scenarios: text files that say, one step per line, what a user does and answers, and what
// should be seen.
#pragma once

#include <iosfwd>
#include <string_view>

#include "scenario/answers.h"
#include "scenario/step.h"
#include "scenario/user.h"

namespace quill::scenario {

// How a play ended; the numbers are exit statuses.
enum class Outcome {
  kPassed = 0,
  kUnexpected = 1,  // an `expect` found something else
  kBroken = 2,      // an invalid step, or a dialog without a suitable answer, ended the run
};

class Player {
 public:
  // Dumps go to `out`, messages to `err`. All must outlive the player; the dialogs must be the
  // program's.
  Player(Program& program, User& user, ScriptedDialogs& dialogs, std::ostream& out,
         std::ostream& err)
      : program_(program), user_(user), dialogs_(dialogs), out_(out), err_(err) {}

  // Plays all lines of a scenario; messages begin with its name and the line's number. A line that
  // is not a step is found only when it is reached. The program must not be used after kBroken.
  Outcome Play(std::string_view name, std::string_view scenario);

 private:
  void PlayLine(std::string_view line);
  void Do(const ClickStep& step);
  void Do(const PickStep& step);
  void Do(const TypeStep& step);
  void Do(const EnterStep& step);
  void Do(const SelectStep& step);
  void Do(const CloseStep&);
  void Do(const AnswerStep& step);
  void Do(const ExpectStep& step);
  void Do(const DumpStep&);
  Control& Find(std::string_view name) const;

  Program& program_;
  User& user_;
  ScriptedDialogs& dialogs_;
  std::ostream& out_;
  std::ostream& err_;
  std::string_view name_;
  int line_ = 0;
  bool unexpected_ = false;
};

// Plays one scenario on a new program and the real disk.
Outcome PlayOnNewProgram(std::string_view name, std::string_view scenario, std::ostream& out,
                         std::ostream& err);

}  // namespace quill::scenario
