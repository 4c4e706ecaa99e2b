// The program: the window model with its handlers attached, and the user's actions on it.
//
// Tests, scenarios and the real window all drive the program through these actions. Each runs to
// completion: the handler, then the focus events and keystrokes that it queued. After the program
// has ended, actions do nothing.
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

  // An action on a control out of the user's reach does nothing.

  // Clicking a button moves the focus to it; clicking a menu item does not.
  void Click(CommandButton& button);
  void Click(MenuItem& item);
  // A key of the window that acts as the button: the focus stays where it is.
  void PressKeyFor(CommandButton& button);
  // The item must exist.
  void ClickItem(ListBox& list, int item);
  void Pick(ComboBox& combo, int row);
  // Moves the focus to a control and raises GotFocus, unless the control has the focus already.
  void GoInto(Control& control);
  // Goes into the control and types key by key: at the end of a box, or over the selection of the
  // text.
  void Type(Control& control, std::u32string_view text);
  // Goes into the box and replaces its text key by key; an empty text clears it.
  void Enter(Control& control, std::u32string_view text);
  // Takes over, as one change, the text that a box's own editing (caret, paste, input method) has
  // produced. Does nothing if the text is the same.
  void Edit(Control& box, std::u32string_view text);
  // Selects in the text with the mouse: the text takes the focus.
  void Select(Position start, Position length);
  // The window's own close button.
  void Close();

  // The user's edits of the text, which must have the focus.
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
