// The controls of the window: their widgets, each with its binder.
#pragma once

#include <memory>

#include "window/shared/actions.h"
#include "window/shared/binder.h"
#include "workbench/control.h"

class QWidget;

namespace quill {

// Each creates the widget of a control inside `container`, and its binder.
std::unique_ptr<Binder> BindButton(CommandButton& button, QWidget& container, Actions& actions);
std::unique_ptr<Binder> BindComboBox(ComboBox& combo, QWidget& container, Actions& actions);
std::unique_ptr<Binder> BindFrame(Frame& frame, QWidget& container, Actions& actions);
std::unique_ptr<Binder> BindLabel(Label& label, QWidget& container, Actions& actions);
std::unique_ptr<Binder> BindListBox(ListBox& list, QWidget& container, Actions& actions);
std::unique_ptr<Binder> BindTextBox(TextBox& box, QWidget& container, Actions& actions);

// The binder for the control's kind. Not for controls without a widget in a container: menu items,
// the dialog, the text.
std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& container, Actions& actions);

}  // namespace quill
