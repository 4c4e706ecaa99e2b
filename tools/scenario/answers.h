// The dialogs of a scenario: they are answered from a queue and tell what was shown.
#pragma once

#include <deque>
#include <iosfwd>

#include "scenario/step.h"
#include "workbench/dialogs.h"

namespace quill::scenario {

// Prints one JSON object as a line. All but ASCII is escaped, as some characters of a text end a
// line for some readers.
void PrintLine(std::ostream& out, const Json& object);

// A dialog that opens while no answer waits, or one that does not fit it, throws ScenarioError.
class ScriptedDialogs final : public Dialogs {
 public:
  // Each dialog prints one line there when it returns. The stream must outlive the dialogs.
  explicit ScriptedDialogs(std::ostream& out) : out_(out) {}

  // Puts an answer behind those that wait; `line` is its place in the scenario.
  void Add(AnswerStep answer, int line) { waiting_.push_back({std::move(answer), line}); }

  std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                         const std::u32string& filter) override;
  std::optional<std::u32string> ShowSave(const std::u32string& title, const std::u32string& filter,
                                         const std::u32string& proposed) override;
  Button MsgBox(const MessageBox& box) override;

 private:
  struct Waiting {
    AnswerStep answer;
    int line = 0;
  };
  // Takes the next answer for a dialog.
  Waiting Take(const std::string& dialog);

  std::ostream& out_;
  std::deque<Waiting> waiting_;
};

}  // namespace quill::scenario
