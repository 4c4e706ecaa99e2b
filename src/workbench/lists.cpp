// List boxes and combo boxes.
#include <algorithm>

#include "workbench/collation.h"
#include "workbench/control.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

const std::u32string& ItemOf(const std::vector<std::u32string>& items, int i) {
  if (i < 0 || i >= static_cast<int>(items.size())) throw StatementFailed("no such item");
  return items[static_cast<std::size_t>(i)];
}

}  // namespace

ComboBox::ComboBox(Form1& form, std::string_view name)
    : Control(form, name), Text(*this, PropertyId::kText, std::u32string(Row().text)) {
  for (const std::u32string_view row : ComboRows(name)) items_.emplace_back(row);
}

const std::u32string& ComboBox::List(int i) const { return ItemOf(items_, i); }

void ComboBox::SetList(int i, std::u32string_view text) {
  if (i < 0 || i > ListCount()) throw StatementFailed("no such row");
  if (i == ListCount()) items_.emplace_back();
  items_[static_cast<std::size_t>(i)] = text;
  Form().TheWatcher().RowChanged(*this, i);
}

void ComboBox::Pick(int row) {
  Text = List(row);
  Raise(Click);
}

ListBox::ListBox(Form1& form, std::string_view name)
    : Control(form, name), sorted_(Row().stored.sorted) {}

void ListBox::WriteListIndex(int i) {
  if (i == listIndex_) return;
  if (i != -1) ItemOf(items_, i);
  Select(i);
  Raise(Click);
}

void ListBox::Select(int i) {
  if (i == listIndex_) return;
  listIndex_ = i;
  Form().TheWatcher().PropertyChanged(*this, PropertyId::kListIndex);
}

void ListBox::AddItem(std::u32string_view text) {
  if (ListCount() >= kMostItems) throw StatementFailed("the list is full");
  auto at = items_.end();
  if (sorted_) at = std::upper_bound(items_.begin(), items_.end(), text, CollatesBefore);
  const int index = static_cast<int>(at - items_.begin());
  items_.emplace(at, text);
  Form().TheWatcher().ItemInserted(*this, index);
}

void ListBox::RemoveItem(int i) {
  ItemOf(items_, i);
  items_.erase(items_.begin() + i);
  Form().TheWatcher().ItemRemoved(*this, i);
  if (listIndex_ == i) {
    Select(-1);
  } else if (listIndex_ > i) {
    Select(listIndex_ - 1);
  }
}

void ListBox::Clear() {
  items_.clear();
  Form().TheWatcher().ListCleared(*this);
  Select(-1);
}

const std::u32string& ListBox::List(int i) const { return ItemOf(items_, i); }

void ListBox::ClickItem(int i) {
  ItemOf(items_, i);
  Select(i);
  Raise(Click);
}

}  // namespace quill
