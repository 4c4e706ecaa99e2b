// The real window. It is built once from the catalogue and then follows the model; it decides
// nothing about the work.
#pragma once

#include <QBasicTimer>
#include <QMainWindow>
#include <functional>
#include <memory>
#include <vector>

#include "window/shared/actions.h"
#include "window/shared/binder.h"
#include "window/updates.h"

class QDropEvent;
class QKeyEvent;
class QLabel;
class QScrollArea;

namespace quill {

class UnsavedCopies;

class MainWindow final : public QMainWindow {
 public:
  // The program must outlive the window.
  explicit MainWindow(Program& program);
  ~MainWindow() override;

  // What a file dropped on the window does, given its path.
  void OnDroppedFile(std::function<void(const QString&)> open) { openFile_ = std::move(open); }
  // From now on they, if any, are told what happens to the text.
  void Inform(UnsavedCopies* copies) { copies_ = copies; }

  // The stored size and the menu bar. The window begins with it where the screen is large enough.
  QSize sizeHint() const override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  // Sees the user's moves of the focus: a press of the mouse on a control, a Tab key. Keeps from
  // the widgets what is no work of theirs: the middle button and drops.
  bool eventFilter(QObject* object, QEvent* event) override;
  // The toolkit's own moves of the focus, as from a widget that is disabled or hidden: they end
  // where keys do no harm.
  bool focusNextPrevChild(bool next) override;

 private:
  void BuildMenus();
  void BuildMarkLabel();
  void BuildControls();
  void StackControls();
  void BuildShortcuts();
  void BeginInFirstBox();
  QWidget& WidgetOf(const Control& control) const;

  void Show();
  void TextLeaves();
  void ShowWindow();
  void ShowFocus();
  void Arrange();

  // Brings the control that a widget belongs to back to what the model holds.
  void ReadBack(const QWidget& widget);

  static bool IsMiddleButton(const QWidget& widget, const QEvent& event);
  void Drop(QDropEvent& event);

  void UserGoesInto(const QWidget& widget);
  bool IsMoveByTab(const QKeyEvent& key);
  bool MoveByTab(bool forward);
  // Whether Tab stops there: in reach, and not behind another panel.
  bool IsTabStop(const Control& control) const;
  Control* ControlOf(const QWidget* widget) const;

  Form1& form_;
  Actions actions_;
  Updates updates_;
  std::function<void(const QString&)> openFile_;
  QString dropped_;  // the file that was dropped last
  QBasicTimer opening_;
  std::vector<std::unique_ptr<Binder>> binders_;  // in the order of the catalogue, menus first
  QScrollArea* room_;                             // what the window has for the desk
  QWidget* desk_;
  QLabel* mark_ = nullptr;        // tells the mark at the caret in words
  Control* lastFocus_ = nullptr;  // where Tab goes on from
  UnsavedCopies* copies_ = nullptr;
};

}  // namespace quill
