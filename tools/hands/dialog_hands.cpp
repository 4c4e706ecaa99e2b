#include "hands/dialog_hands.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <algorithm>

#include "hands/hands.h"

namespace quill {
namespace {

constexpr int kPause = 2;  // milliseconds

}  // namespace

DialogHands::DialogHands() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { UseTopmost(); });
  timer_.setSingleShot(true);
  timer_.start(kPause);
}

QDialog* DialogHands::Open() {
  if (QWidget* const modal = QApplication::activeModalWidget()) {
    return modal->isVisible() ? qobject_cast<QDialog*>(modal) : nullptr;
  }
  // A question about a term lets the wheel scroll the text, so to the toolkit it is not modal.
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto found = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const QDialog*>(window) != nullptr;
  });
  return found != windows.end() ? qobject_cast<QDialog*>(*found) : nullptr;
}

void DialogHands::UseTopmost() {
  // A dialog may open another one while it is in use: the next look must not wait for this one to
  // end.
  timer_.start(kPause);
  QDialog* const dialog = Open();
  if (dialog == nullptr) return;
  // An exception must not go through the dialog's event loop.
  try {
    TakeUse (*dialog)(*dialog);
    if (dialog->isVisible()) {
      throw HandsFailed("the dialog " + dialog->windowTitle().toStdString() + " stayed open");
    }
  } catch (...) {
    if (!failure_) failure_ = std::current_exception();
    dialog->done(QDialog::Rejected);
  }
}

DialogHands::Use DialogHands::TakeUse(const QDialog& dialog) {
  if (waiting_.empty() && others_) return others_;
  if (waiting_.empty()) {
    throw HandsFailed("nobody expected the dialog " + dialog.windowTitle().toStdString());
  }
  Use use = std::move(waiting_.front());
  waiting_.pop_front();
  return use;
}

void DialogHands::Finish() {
  if (failure_) std::rethrow_exception(std::exchange(failure_, nullptr));
  if (waiting_.empty()) return;
  const std::size_t missing = waiting_.size();
  waiting_.clear();
  throw HandsFailed(std::to_string(missing) + " dialogs too few opened");
}

void DialogHands::TypeName(QDialog& fileDialog, const char* name) {
  auto* const line = fileDialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (line == nullptr) throw HandsFailed("a file dialog that cannot be typed into");
  QTest::keyClick(line, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(line, QString::fromUtf8(name));
  QTest::keyClick(line, Qt::Key_Return);
}

void DialogHands::Press(QDialog& messageBox, QMessageBox::StandardButton button) {
  auto* const box = qobject_cast<QMessageBox*>(&messageBox);
  QAbstractButton* const pressed = box != nullptr ? box->button(button) : nullptr;
  if (pressed == nullptr) {
    throw HandsFailed("no such button: " + messageBox.windowTitle().toStdString());
  }
  QTest::mouseClick(pressed, Qt::LeftButton);
}

}  // namespace quill
