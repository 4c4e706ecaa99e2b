// Buttons, drawn flat, in their own colour where they show one, with captions that wrap.
#pragma once

#include "window/shared/binder.h"

class QPushButton;

namespace quill {

class ButtonBinder final : public WidgetBinder {
 public:
  ButtonBinder(CommandButton& button, QWidget& container, Actions& actions);

 private:
  ButtonBinder(CommandButton& button, QPushButton& widget, Actions& actions);
};

}  // namespace quill
