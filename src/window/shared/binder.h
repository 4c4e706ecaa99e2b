// A binder connects one control of the model with its widget: it sets the widget up from the
// catalogue, passes the user's actions to the program, and shows the model's state.
#pragma once

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
  // Updates the widget from the model; touches only what differs.
  virtual void Show() = 0;
  // Undoes what the toolkit may have done to the widget on its own, without scrolling.
  virtual void ReadBack() { Show(); }
  // Gives the widget the keyboard focus, after the program has moved it there.
  virtual void TakeFocus() {}
  // The items of a list have changed since it was last shown; in the order of the changes.
  virtual void ItemInserted(int /*index*/) {}
  virtual void ItemRemoved(int /*index*/) {}
  virtual void ItemsChanged() {}
};

}  // namespace quill
