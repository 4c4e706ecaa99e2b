// What the program asks of its user. It has a real form (WindowDialogs) and others for tests.
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

// Modal dialogs. Calls return when the user has answered.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The path that the user chose, or nothing after a cancel. The filter is pairs of display text
  // and pattern, all separated by vertical bars.
  virtual std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                                 const std::u32string& filter) = 0;
  virtual std::optional<std::u32string> ShowSave(const std::u32string& title,
                                                 const std::u32string& filter,
                                                 const std::u32string& proposed) = 0;
  // The button pressed.
  virtual Button MsgBox(const MessageBox& box) = 0;
};

}  // namespace quill
