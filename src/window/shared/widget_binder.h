// What all binders of widgets share.
#pragma once

#include <memory>

#include "window/shared/actions.h"
#include "window/shared/binder.h"
#include "workbench/control.h"

class QWidget;

namespace quill {

class WidgetBinder : public Binder {
 public:
  QWidget* Widget() const final { return &widget_; }
  // Shows whether the control is enabled and visible.
  void Show() override;
  void TakeFocus() override;

 protected:
  // Sets name, place, font and tool tip. The widget belongs to its parent.
  WidgetBinder(const Control& control, QWidget& widget, Actions& actions);

  Actions& TheActions() const { return actions_; }

 private:
  const Control& control_;
  QWidget& widget_;
  Actions& actions_;
};

}  // namespace quill
