#include "scenario/answers.h"

#include <ostream>

#include "scenario/line_reader.h"
#include "text/unicode.h"

namespace quill::scenario {
namespace {

// A dialog's name in messages, in one line.
std::string Called(std::string_view kind, const std::u32string& title) {
  return std::string(kind) + ' ' + Json(ToUtf8(title)).dump();
}

[[noreturn]] void RefuseAnswer(const std::string& dialog, int line) {
  throw ScenarioError("the answer of line " + std::to_string(line) + " does not fit " + dialog);
}

Json ResultOf(const std::optional<std::u32string>& path) {
  return path ? Json(ToUtf8(*path)) : Json();
}

// The window system's numbers, as scenarios print them.
int NumberOf(const MessageBox& box) {
  constexpr int kIcons[] = {0, 16, 32, 48};
  constexpr int kButtons[] = {0, 1, 4};
  return kIcons[static_cast<int>(box.icon)] + kButtons[static_cast<int>(box.buttons)];
}
int NumberOf(Button button) {
  constexpr int kNumbers[] = {1, 2, 6, 7};
  return kNumbers[static_cast<int>(button)];
}

// Nothing if the message box lacks the button.
std::optional<Button> ButtonFor(AnswerStep::Kind answer, MessageBox::Buttons buttons) {
  const bool asksYesNo = buttons == MessageBox::Buttons::kYesNo;
  if (answer == AnswerStep::kOk && !asksYesNo) return Button::kOk;
  if (answer == AnswerStep::kCancel && buttons == MessageBox::Buttons::kOkCancel) {
    return Button::kCancel;
  }
  if (answer == AnswerStep::kYes && asksYesNo) return Button::kYes;
  if (answer == AnswerStep::kNo && asksYesNo) return Button::kNo;
  return std::nullopt;
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

Button ScriptedDialogs::MsgBox(const MessageBox& box) {
  const std::string dialog = Called("MsgBox", box.prompt);
  const auto [answer, line] = Take(dialog);
  const std::optional<Button> pressed = ButtonFor(answer.kind, box.buttons);
  if (!pressed) RefuseAnswer(dialog, line);
  PrintLine(out_, {{"MsgBox",
                    {{"prompt", ToUtf8(box.prompt)},
                     {"buttons", NumberOf(box)},
                     {"title", ToUtf8(box.title)},
                     {"result", NumberOf(*pressed)}}}});
  return *pressed;
}

}  // namespace quill::scenario
