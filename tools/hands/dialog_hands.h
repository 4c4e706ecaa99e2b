// A user's hands on the dialogs that open over the window during an action of that user's.
#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QTimer>
#include <deque>
#include <exception>
#include <functional>

namespace quill {

// While it lives, uses every dialog that opens. A dialog without a use, or whose use fails, is
// closed as if cancelled.
class DialogHands {
 public:
  // Looks at the dialog and closes it, by mouse or keys.
  using Use = std::function<void(QDialog&)>;

  DialogHands();

  // The dialog that takes the user's hands now; nullptr for none.
  static QDialog* Open();

  // What to do with the coming dialogs, one each, in this order.
  void AtNext(Use use) { waiting_.push_back(std::move(use)); }
  // What to do with dialogs for which no use is waiting.
  void AtOthers(Use use) { others_ = std::move(use); }
  // Throws HandsFailed if a dialog could not be used, was not expected, or did not open.
  void Finish();

  // Types the name of a file in the current folder, then Enter, into one of the toolkit's own file
  // dialogs.
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
