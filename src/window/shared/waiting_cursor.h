// The cursor that asks the user to wait.
#pragma once

#include <QApplication>
#include <QCursor>

namespace quill {

class WaitingCursor {
 public:
  WaitingCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  WaitingCursor(const WaitingCursor&) = delete;
  WaitingCursor& operator=(const WaitingCursor&) = delete;
  ~WaitingCursor() { QApplication::restoreOverrideCursor(); }
};

// Removes it while the program waits for the user.
class NoWaitingCursor {
 public:
  NoWaitingCursor() : wasShown_(QApplication::overrideCursor() != nullptr) {
    if (wasShown_) QApplication::restoreOverrideCursor();
  }
  NoWaitingCursor(const NoWaitingCursor&) = delete;
  NoWaitingCursor& operator=(const NoWaitingCursor&) = delete;
  ~NoWaitingCursor() {
    if (wasShown_) QApplication::setOverrideCursor(Qt::WaitCursor);
  }

 private:
  bool wasShown_;
};

}  // namespace quill
