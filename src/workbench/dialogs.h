// What the program asks of its user. It has a real form (WindowDialogs) and others for tests.
#pragma once

#include <optional>
#include <string>

namespace quill {

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
  // The button pressed: 1 OK, 2 Cancel, 6 Yes, 7 No. Buttons: 0 OK; 16 critical icon, OK;
  // 33 question icon, OK and Cancel; 52 exclamation icon, Yes and No.
  virtual int MsgBox(const std::u32string& prompt, int buttons, const std::u32string& title) = 0;
};

}  // namespace quill
