// Plays scenarios: text files that say, one step a line, what a user does, what the user answers
// and what is to be seen.
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
  kBroken = 2,      // a wrong step or a dialog without a fitting answer ended the run
};

class Player {
 public:
  // Dumps go to `out`, messages to `err`. All must outlive the player; the dialogs are those of
  // the program.
  Player(Program& program, User& user, ScriptedDialogs& dialogs, std::ostream& out,
         std::ostream& err)
      : program_(program), user_(user), dialogs_(dialogs), out_(out), err_(err) {}

  // Plays all lines of a scenario; messages begin with its name and the line's number. A line that
  // is no step is found when it is reached. The program may not be used after kBroken.
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

// Plays one scenario on a new program and the disk.
Outcome PlayOnNewProgram(std::string_view name, std::string_view scenario, std::ostream& out,
                         std::ostream& err);

}  // namespace quill::scenario
