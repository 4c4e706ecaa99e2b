// A user's hands on the dialogs that open over the window while an action of theirs still runs.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <exception>
#include <functional>

namespace quill {

// Uses whatever dialog opens, as long as it lives. A dialog that nobody knows what to do with, and
// one whose use fails, is closed as if refused.
class DialogHands {
 public:
  // Looks at the dialog and closes it, by mouse or keys.
  using Use = std::function<void(QDialog&)>;

  DialogHands();

  // The dialog that takes the user's hands now; nullptr for none.
  static QDialog* Open();

  // What to do with the dialogs to come, one each, in this order.
  void AtNext(Use use) { waiting_.push_back(std::move(use)); }
  // What to do with the dialogs that no use waits for.
  void AtOthers(Use use) { others_ = std::move(use); }
  // Throws HandsFailed where a dialog could not be used, none was waited for, or one did not come.
  void Finish();

  // Types the name of a file of the folder on show into a dialog of the toolkit's own, and Enter.
  static void TypeName(QDialog& fileDialog, const char* name);
  static void Press(QDialog& messageBox, QMessageBox::StandardButton button);

 private:
  void UseTopmost();
  Use TakeUse(const QDialog& dialog);

  QTimer timer_;
  std::deque<Use> waiting_;
  Use others_;
  std::exception_ptr failure_;
};

}  // namespace quill
