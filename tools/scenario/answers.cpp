#include "scenario/answers.h"

#include <ostream>

#include "scenario/line_reader.h"
#include "text/unicode.h"

namespace quill::scenario {
namespace {

// A dialog as messages name it, in one line.
std::string Called(std::string_view kind, const std::u32string& title) {
  return std::string(kind) + ' ' + Json(ToUtf8(title)).dump();
}

[[noreturn]] void RefuseAnswer(const std::string& dialog, int line) {
  throw ScenarioError("the answer of line " + std::to_string(line) + " does not fit " + dialog);
}

Json ResultOf(const std::optional<std::u32string>& path) {
  return path ? Json(ToUtf8(*path)) : Json();
}

// What a message box with these buttons returns for an answer; 0 where it lacks the button.
int ButtonFor(AnswerStep::Kind answer, int buttons) {
  const int set = buttons & 15;
  const bool hasOk = set == 0 || set == 1;
  const bool hasCancel = set == 1;
  const bool hasYesAndNo = set == 4;
  if (answer == AnswerStep::kOk && hasOk) return 1;
  if (answer == AnswerStep::kCancel && hasCancel) return 2;
  if (answer == AnswerStep::kYes && hasYesAndNo) return 6;
  if (answer == AnswerStep::kNo && hasYesAndNo) return 7;
  return 0;
}

}  // namespace

void PrintLine(std::ostream& out, const Json& object) {
  constexpr int kOneLine = -1;
  constexpr bool kAsciiOnly = true;
  out << object.dump(kOneLine, ' ', kAsciiOnly) << std::endl;
}

ScriptedDialogs::Waiting ScriptedDialogs::Take(const std::string& dialog) {
  if (waiting_.empty()) throw ScenarioError("no answer waits for " + dialog);
  Waiting next = std::move(waiting_.front());
  waiting_.pop_front();
  return next;
}

std::optional<std::u32string> ScriptedDialogs::ShowOpen(const std::u32string& title,
                                                        const std::u32string& filter) {
  const std::string dialog = Called("ShowOpen", title);
  const auto [answer, line] = Take(dialog);
  std::optional<std::u32string> result;
  if (answer.kind == AnswerStep::kPath) {
    result = answer.path;
  } else if (answer.kind != AnswerStep::kCancel) {
    RefuseAnswer(dialog, line);
  }
  PrintLine(
      out_,
      {{"ShowOpen",
        {{"title", ToUtf8(title)}, {"filter", ToUtf8(filter)}, {"result", ResultOf(result)}}}});
  return result;
}

std::optional<std::u32string> ScriptedDialogs::ShowSave(const std::u32string& title,
                                                        const std::u32string& filter,
                                                        const std::u32string& proposed) {
  const std::string dialog = Called("ShowSave", title);
  const auto [answer, line] = Take(dialog);
  std::optional<std::u32string> result;
  if (answer.kind == AnswerStep::kPath) {
    result = answer.path;
  } else if (answer.kind == AnswerStep::kProposed) {
    result = proposed;
  } else if (answer.kind != AnswerStep::kCancel) {
    RefuseAnswer(dialog, line);
  }
  PrintLine(out_, {{"ShowSave",
                    {{"title", ToUtf8(title)},
                     {"filter", ToUtf8(filter)},
                     {"proposed", ToUtf8(proposed)},
                     {"result", ResultOf(result)}}}});
  return result;
}

int ScriptedDialogs::MsgBox(const std::u32string& prompt, int buttons,
                            const std::u32string& title) {
  const std::string dialog = Called("MsgBox", prompt);
  const auto [answer, line] = Take(dialog);
  const int result = ButtonFor(answer.kind, buttons);
  if (result == 0) RefuseAnswer(dialog, line);
  PrintLine(out_, {{"MsgBox",
                    {{"prompt", ToUtf8(prompt)},
                     {"buttons", buttons},
                     {"title", ToUtf8(title)},
                     {"result", result}}}});
  return result;
}

}  // namespace quill::scenario
