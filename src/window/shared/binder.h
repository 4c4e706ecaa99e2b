// A binder ties one control of the model to its widget: it sets the widget up from the catalogue,
// hands the user's actions to the program, and shows what the model says.
#pragma once

#include <memory>

#include "window/shared/actions.h"
#include "workbench/control.h"

class QWidget;

namespace quill {

class Binder {
 public:
  Binder() = default;
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;
  virtual ~Binder() = default;

  // nullptr for a menu item.
  virtual QWidget* Widget() const { return nullptr; }
  // Brings the widget up to the model; touches only what differs.
  virtual void Show() = 0;
  // Brings back what the toolkit may have done to the widget by itself, without scrolling.
  virtual void ReadBack() { Show(); }
  // Gives the widget the keyboard focus, as the program moved it there.
  virtual void TakeFocus() {}
  // The items of a list have changed since it was last shown; in the order of the changes.
  virtual void ItemInserted(int /*index*/) {}
  virtual void ItemRemoved(int /*index*/) {}
  virtual void ItemsChanged() {}
};

// What all binders of widgets share.
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

// Makes the widget of a control inside `container`, and its binder. Controls that have no widget
// of their own in a container (menu items, the dialog, the text) are none of its business.
std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& container, Actions& actions);

}  // namespace quill
