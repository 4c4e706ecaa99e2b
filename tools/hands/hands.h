// A user's hands on the real window: mouse and keyboard, in words of the domain. Widgets have the
// names of their controls.
//
// A hand does what a user could do: it throws HandsFailed, a sentence that names the widget, where
// a control is not there, hidden, covered or out of use, and where a row or a place in the text
// cannot be pointed at.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QTextEdit>
#include <stdexcept>
#include <string>

#include "text/document.h"

class QMenuBar;
class QToolButton;

namespace quill {

class HandsFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class Hands {
 public:
  // The window must outlive the hands; it is looked at when they do something, not before.
  explicit Hands(QMainWindow& window) : window_(window) {}

  QWidget& Widget(const char* name) const;
  QTextEdit& View() const;        // of the text
  std::string FocusName() const;  // of the widget that keys go to; empty for none
  // The bar's own button, with a menu of the titles that a narrow window has no room for; nullptr
  // where all have room. Its menu lets nobody go on before it is closed.
  static QToolButton* MoreTitles(const QMenuBar& bar);

  void Press(const char* name);       // with the mouse, in its middle
  void Choose(const char* menuItem);  // through its menu, with the mouse where that has room
  // Rows count from 0.
  void PickRow(const char* combo, int row);       // from the list that drops down
  void Pick(const char* combo, const char* row);  // the row of that text, blanks at its end apart
  void ClickRow(const char* list, int row);       // it must be in sight
  void WheelToRow(const char* list, int row);     // until it is in sight
  // Inside a widget, in its own pixels.
  static void Drag(QWidget& widget, const QPoint& from, const QPoint& to,
                   Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});

  void Keys(const char* text);  // to whatever has the focus
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  void Replace(const char* box, const char* text);  // what the box holds, by keys

  // In the text, with the mouse. Positions count from 0, in a text without characters beyond
  // U+FFFF; they must be in sight.
  void DragOver(Position begin, Position end);
  void ClickAt(Position at) { DragOver(at, at); }
  // Turns the wheel over the text until that position is in sight.
  void WheelTo(Position at);

 private:
  QAction& Item(const char* name) const;
  QPoint PointAt(Position at) const;

  QMainWindow& window_;
};

}  // namespace quill
