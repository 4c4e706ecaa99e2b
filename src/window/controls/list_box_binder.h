// List boxes: quick with as many items as a list can hold. What is highlighted is the list's own
// ListIndex: a left click on a row and the keys that move or find a row are a user's choice, and
// nothing else selects. The selected item is scrolled into view whenever the program selects it,
// and the view scrolls sideways to the end of the longest.
#pragma once

#include <vector>

#include "window/shared/binder.h"

namespace quill {

class ListView;

struct ItemChange {
  bool inserted = false;  // else removed
  int index = 0;
  int weight = 0;  // of the text inserted: a measure of its width
};

class ListBoxBinder final : public WidgetBinder {
 public:
  ListBoxBinder(ListBox& list, QWidget& container, Actions& actions);
  void Show() override;
  void ReadBack() override;
  void ItemInserted(int index) override;
  void ItemRemoved(int index) override;
  void ItemsChanged() override;

 private:
  ListBoxBinder(ListBox& list, ListView& view, Actions& actions);

  // More changes than these are shown as a new list.
  static constexpr std::size_t kMostSingleChanges = 8;

  ListBox& list_;
  ListView& view_;
  std::vector<ItemChange> changes_;  // since the list was last shown
};

}  // namespace quill
