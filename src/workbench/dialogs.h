// The dialogs in which the program asks the user. WindowDialogs has the real ones; tests, scenarios
// and benchmarks have others.
#pragma once

#include <optional>
#include <string>

namespace quill {

enum class Button { kOk, kCancel, kYes, kNo };

struct MessageBox {
  enum class Icon { kNone, kCritical, kQuestion, kExclamation };
  enum class Buttons { kOk, kOkCancel, kYesNo };

  std::u32string prompt;
  std::u32string title;
  Icon icon = Icon::kNone;
  Buttons buttons = Buttons::kOk;
};

// Modal: a call returns once the user has answered.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The chosen path, or nothing if the user cancelled. The filter is pairs of display text and
  // pattern, all separated by vertical bars.
  virtual std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                                 const std::u32string& filter) = 0;
  virtual std::optional<std::u32string> ShowSave(const std::u32string& title,
                                                 const std::u32string& filter,
                                                 const std::u32string& proposed) = 0;
  // The button pressed.
  virtual Button MsgBox(const MessageBox& box) = 0;
};

}  // namespace quill
