// List boxes: quick with as many items as a list can hold.
#pragma once

#include "window/binder.h"

namespace quill {

class ListView;

class ListBoxBinder final : public WidgetBinder {
 public:
  ListBoxBinder(ListBox& list, QWidget& container, Actions& actions);
  void Show() override;
  void ItemsChanged() override { changed_ = true; }

 private:
  ListBoxBinder(ListBox& list, ListView& view, Actions& actions);

  ListBox& list_;
  ListView& view_;
  bool changed_ = true;
};

}  // namespace quill
