// The dialogs of a scenario: they are answered from a queue and print what they showed.
#pragma once

#include <deque>
#include <iosfwd>

#include "scenario/step.h"
#include "workbench/dialogs.h"

namespace quill::scenario {

// Prints a JSON object as one line. Everything but ASCII is escaped, because some readers end a
// line at other characters, too.
void PrintLine(std::ostream& out, const Json& object);

// A dialog for which no answer is waiting, or an unsuitable one, throws ScenarioError.
class ScriptedDialogs final : public Dialogs {
 public:
  // Each dialog prints one line to the stream when it returns. The stream must outlive the dialogs.
  explicit ScriptedDialogs(std::ostream& out) : out_(out) {}

  // Queues an answer; `line` is its place in the scenario.
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
