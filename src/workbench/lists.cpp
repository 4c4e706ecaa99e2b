// List boxes and combo boxes.
#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

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

template <class T>
std::vector<T> InOrder(std::vector<T> values, const std::vector<std::size_t>& order) {
  std::vector<T> ordered;
  ordered.reserve(values.size());
  for (const std::size_t from : order) ordered.push_back(std::move(values[from]));
  return ordered;
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
  if (sorted_) {
    std::string key = CollationKey(text);
    const auto place = std::upper_bound(keys_.begin(), keys_.end(), key);
    at = items_.begin() + (place - keys_.begin());
    keys_.insert(place, std::move(key));
  }
  const auto index = static_cast<int>(at - items_.begin());
  items_.emplace(at, text);
  Form().TheWatcher().ItemInserted(*this, index);
}

void ListBox::AddItems(const std::vector<std::u32string>& texts) {
  const auto room = static_cast<std::size_t>(kMostItems - ListCount());
  const auto end = texts.begin() + static_cast<std::ptrdiff_t>(std::min(room, texts.size()));
  const auto old = static_cast<std::ptrdiff_t>(items_.size());
  items_.insert(items_.end(), texts.begin(), end);
  if (sorted_) SortFrom(old);
  Form().TheWatcher().ItemsChanged(*this);
}

// The items before `unsorted` are in order, and stay before items that compare equal.
void ListBox::SortFrom(std::ptrdiff_t unsorted) {
  for (auto item = items_.begin() + unsorted; item != items_.end(); ++item) {
    keys_.push_back(CollationKey(*item));
  }
  std::vector<std::size_t> order(items_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto before = [this](std::size_t a, std::size_t b) { return keys_[a] < keys_[b]; };
  std::stable_sort(order.begin() + unsorted, order.end(), before);
  std::inplace_merge(order.begin(), order.begin() + unsorted, order.end(), before);
  items_ = InOrder(std::move(items_), order);
  keys_ = InOrder(std::move(keys_), order);
}

void ListBox::RemoveItem(int i) {
  ItemOf(items_, i);
  items_.erase(items_.begin() + i);
  if (sorted_) keys_.erase(keys_.begin() + i);
  Form().TheWatcher().ItemRemoved(*this, i);
  if (listIndex_ == i) {
    Select(-1);
  } else if (listIndex_ > i) {
    Select(listIndex_ - 1);
  }
}

void ListBox::Clear() {
  items_.clear();
  keys_.clear();
  Form().TheWatcher().ItemsChanged(*this);
  Select(-1);
}

const std::u32string& ListBox::List(int i) const { return ItemOf(items_, i); }

void ListBox::ClickItem(int i) {
  ItemOf(items_, i);
  Select(i);
  Raise(Click);
}

}  // namespace quill
