#include "window/updates.h"

#include <utility>

namespace quill {

Updates::Updates(Form1& form, std::function<void()> show, std::function<void()> leaves)
    : form_(form), show_(std::move(show)), leaves_(std::move(leaves)) {
  form_.SetWatcher(this);
}

Updates::~Updates() { form_.SetWatcher(nullptr); }

void Updates::Follow(const Control& control, Binder& binder) { binders_[&control] = &binder; }

void Updates::FollowText(DocumentBinder& binder) {
  text_ = &binder;
  Follow(form_.RichTextBox1, binder);
}

void Updates::ShowAll() {
  touched_.clear();
  for (const auto& [control, binder] : binders_) binder->Show();
}

void Updates::ShowChanges() {
  for (Binder* const binder : std::exchange(touched_, {})) binder->Show();
}

void Updates::Touch(const Control& control) {
  const auto found = binders_.find(&control);
  if (found != binders_.end()) touched_.insert(found->second);
}

void Updates::PropertyChanged(Control& control, PropertyId /*property*/) {
  Touch(control);
  if (&control == &form_ || &control == &form_.User_Dialogue) windowChanged_ = true;
  if (control.Kind() != Kind::kMenuItem) return;
  // The items under a menu title are in reach only if the title is.
  for (const auto& [other, binder] : binders_) {
    if (&form_.ContainerOf(*other) == &control) touched_.insert(binder);
  }
}

void Updates::ItemInserted(ListBox& list, int index) {
  BinderOf(list).ItemInserted(index);
  Touch(list);
}

void Updates::ItemRemoved(ListBox& list, int index) {
  BinderOf(list).ItemRemoved(index);
  Touch(list);
}

void Updates::ItemsChanged(ListBox& list) {
  BinderOf(list).ItemsChanged();
  Touch(list);
}

void Updates::RowChanged(ComboBox& combo, int /*row*/) { Touch(combo); }

void Updates::TextLoaded() {
  text_->Changes().Load();
  touched_.insert(text_);
}

void Updates::TextReplaced(Position at, Position removed, Position inserted) {
  text_->Changes().Replace(at, removed, inserted);
  touched_.insert(text_);
}

void Updates::FormatChanged(Range range) {
  text_->Changes().Format(range);
  touched_.insert(text_);
}

void Updates::SelectionChanged() {
  text_->SelectionMoved();
  touched_.insert(text_);
}

void Updates::RevealAsked(bool reveal) {
  text_->AskReveal(reveal);
  touched_.insert(text_);
}

}  // namespace quill
