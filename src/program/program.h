// The program: the window model with its handlers attached, and the actions of a user on it.
//
// Whoever drives the program, a test, a scenario or the real window, does so through the actions
// below. Each runs to its end: the handler, then the focus events and the keystrokes that it
// queued. After the program has ended, actions do nothing.
#pragma once

#include <string_view>

#include "workbench/form1.h"

namespace quill {

class Program {
 public:
  // Both must outlive the program.
  Program(Dialogs& dialogs, Disk& disk);

  Form1& Form() { return form_; }
  const Form1& Form() const { return form_; }
  bool Ended() const { return ended_; }

  // Every action on a control that is out of the user's reach does nothing.

  // A click on a button takes the focus to it; a click on a menu item does not.
  void Click(CommandButton& button);
  void Click(MenuItem& item);
  // The item must exist.
  void ClickItem(ListBox& list, int item);
  void Pick(ComboBox& combo, int row);
  // Goes into a control: moves the focus there and raises GotFocus, unless it has the focus.
  void GoInto(Control& control);
  // Goes in and types key by key: at the end of a box, at the selection of the text.
  void Type(Control& control, std::u32string_view text);
  // Goes in and types over all that the box holds; an empty text deletes it.
  void Enter(Control& control, std::u32string_view text);
  // What a box's own editing (a caret inside, a paste, an input method) made of its text: one
  // change. Does nothing where the text is the same or the box is out of reach.
  void Edit(Control& box, std::u32string_view text);
  // Selects in the text with the mouse: the text takes the focus.
  void Select(Position start, Position length);
  // Closes the window by its own close button.
  void Close();

  // Edits of the text itself by a user's hand; the text must have the focus.
  void DeleteInText(Range range);
  void TypeInText(std::u32string_view text);  // as one edit
  void UndoInText();
  void RedoInText();

 private:
  template <class Action>
  void Run(Action&& action);
  void Deliver();
  void DeliverKeys(std::u32string_view keys);
  bool Key(Control& control, char32_t key, bool overAll);

  Form1 form_;
  bool ended_ = false;
};

}  // namespace quill
