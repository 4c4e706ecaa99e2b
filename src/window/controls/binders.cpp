#include "window/controls/binders.h"

#include <stdexcept>
#include <string>

namespace quill {

std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& container, Actions& actions) {
  switch (control.Kind()) {
    case Kind::kTextBox:
      return BindTextBox(static_cast<TextBox&>(control), container, actions);
    case Kind::kComboBox:
      return BindComboBox(static_cast<ComboBox&>(control), container, actions);
    case Kind::kListBox:
      return BindListBox(static_cast<ListBox&>(control), container, actions);
    case Kind::kButton:
      return BindButton(static_cast<CommandButton&>(control), container, actions);
    case Kind::kFrame:
      return BindFrame(static_cast<Frame&>(control), container, actions);
    case Kind::kLabel:
      return BindLabel(static_cast<Label&>(control), container, actions);
    default:
      throw std::logic_error("no widget for " + std::string(control.Name()));
  }
}

}  // namespace quill
