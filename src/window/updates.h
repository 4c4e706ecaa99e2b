// Collects the model's changes until they are shown: at the end of an action and before a dialog.
#pragma once

#include <functional>
#include <map>
#include <set>

#include "window/text/document_binder.h"
#include "workbench/form1.h"

namespace quill {

class Updates final : public Watcher {
 public:
  // `show` is called before a dialog opens, `leaves` before another text replaces the text.
  Updates(Form1& form, std::function<void()> show, std::function<void()> leaves);
  ~Updates() override;

  void Follow(const Control& control, Binder& binder);
  void FollowText(DocumentBinder& binder);

  Binder& BinderOf(const Control& control) const { return *binders_.at(&control); }

  // Shows every control, changed or not.
  void ShowAll();
  // Shows what changed.
  void ShowChanges();
  bool TakeFocusMoved() { return std::exchange(focusMoved_, false); }
  // The caption of the window or what its layout depends on has changed.
  bool TakeWindowChanged() { return std::exchange(windowChanged_, false); }

  void PropertyChanged(Control& control, PropertyId property) override;
  void ItemsChanged(ListBox& list) override;
  void ItemInserted(ListBox& list, int index) override;
  void ItemRemoved(ListBox& list, int index) override;
  void RowChanged(ComboBox& combo, int row) override;
  void TextLeaves() override { leaves_(); }
  void TextLoaded() override;
  void TextReplaced(Position at, Position removed, Position inserted) override;
  void FormatChanged(Range range) override;
  void SelectionChanged() override;
  void RevealAsked(bool reveal) override;
  void FocusMoved() override { focusMoved_ = true; }
  void DialogOpens() override { show_(); }

 private:
  void Touch(const Control& control);

  Form1& form_;
  std::function<void()> show_;
  std::function<void()> leaves_;
  std::map<const Control*, Binder*> binders_;
  std::set<Binder*> touched_;
  DocumentBinder* text_ = nullptr;
  bool focusMoved_ = false;
  bool windowChanged_ = true;
};

}  // namespace quill
