// A binder ties one control of the model to its widget: it sets the widget up from the catalogue,
// hands the user's actions to the program, and shows what the model says.
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

}  // namespace quill
