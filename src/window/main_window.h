// The real window. It is built once from the catalogue, then follows the model; it makes no
// decisions about the work.
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

class DocumentBinder;
class UnsavedCopies;

class MainWindow final : public QMainWindow {
 public:
  // The program must outlive the window.
  explicit MainWindow(Program& program);
  ~MainWindow() override;

  // Called with the path of a file dropped on the window.
  void OnDroppedFile(std::function<void(const QString&)> open) { openFile_ = std::move(open); }
  // From now on, the copies (if not nullptr) are told what happens to the text.
  void Inform(UnsavedCopies* copies) { copies_ = copies; }

  // The stored size plus the menu bar: the initial size if the screen is large enough.
  QSize sizeHint() const override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  // Watches for the user's moves of the focus: a mouse press on a control, a Tab key. Keeps the
  // middle button and drops away from the widgets.
  bool eventFilter(QObject* object, QEvent* event) override;
  // The toolkit's own moves of the focus, for instance away from a disabled or hidden widget, end
  // where keys do no harm.
  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void BuildMenus();
  void BuildMarkLabel();
  void ShowMarkAtCaret();
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

  // Sets a control back to the model's state, given one of its widgets.
  void ReadBack(const QWidget& widget);

  static bool IsMiddleButton(const QWidget& widget, const QEvent& event);
  void Drop(QDropEvent& event);

  void UserGoesInto(const QWidget& widget);
  bool IsMoveByTab(const QKeyEvent& key);
  bool MoveByTab(bool forward);
  // Whether Tab stops there: whether the control is in reach and not behind another panel.
  bool IsTabStop(const Control& control) const;
  Control* ControlOf(const QWidget* widget) const;

  Form1& form_;
  Actions actions_;
  Updates updates_;
  std::function<void(const QString&)> openFile_;
  QString dropped_;  // the last file dropped
  QBasicTimer opening_;
  std::vector<std::unique_ptr<Binder>> binders_;  // in the order of the catalogue, menus first
  QScrollArea* room_;                             // the viewport of the desk
  QWidget* desk_;
  DocumentBinder* text_ = nullptr;
  QLabel* mark_ = nullptr;        // names the mark at the caret
  Control* lastFocus_ = nullptr;  // where Tab continues from
  UnsavedCopies* copies_ = nullptr;
};

}  // namespace quill
