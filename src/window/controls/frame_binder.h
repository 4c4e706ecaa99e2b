// Frames, which group controls and cover what lies behind them, and labels.
#pragma once

#include "window/shared/binder.h"

class QGroupBox;
class QLabel;

namespace quill {

class FrameBinder final : public WidgetBinder {
 public:
  FrameBinder(Frame& frame, QWidget& container, Actions& actions);

 private:
  FrameBinder(Frame& frame, QGroupBox& box, Actions& actions);
};

class LabelBinder final : public WidgetBinder {
 public:
  LabelBinder(Label& label, QWidget& container, Actions& actions);

 private:
  LabelBinder(Label& label, QLabel& widget, Actions& actions);
};

}  // namespace quill
