// The observer of the window model: the real window or a test.
#pragma once

#include "text/document.h"

namespace quill {

class Control;
class ListBox;
class ComboBox;

// The property of a control whose value changed.
enum class PropertyId {
  kText,
  kEnabled,
  kVisible,
  kBackColor,
  kForeColor,
  kFontBold,
  kCaption,
  kListIndex
};

// Called inside each write, in order. A watcher must not write to the model before the action has
// ended.
class Watcher {
 public:
  virtual ~Watcher() = default;

  virtual void PropertyChanged(Control& /*control*/, PropertyId /*property*/) {}
  // A single item added or removed is reported by index; several are reported as a change of the
  // list.
  virtual void ItemsChanged(ListBox& /*list*/) {}
  virtual void ItemInserted(ListBox& /*list*/, int /*index*/) {}
  virtual void ItemRemoved(ListBox& /*list*/, int /*index*/) {}
  virtual void RowChanged(ComboBox& /*combo*/, int /*row*/) {}
  // Another text is about to replace this one: the last look at it.
  virtual void TextLeaves() {}
  // The whole text was replaced.
  virtual void TextLoaded() {}
  // At `at`, `inserted` characters have replaced `removed` characters.
  virtual void TextReplaced(Position /*at*/, Position /*removed*/, Position /*inserted*/) {}
  // Attributes changed within the range; any of its characters may look different.
  virtual void FormatChanged(Range /*range*/) {}
  virtual void SelectionChanged() {}
  // Whether to scroll the selection of the text into view; the last call counts.
  virtual void RevealAsked(bool /*reveal*/) {}
  virtual void FocusMoved() {}
  // A modal dialog is about to open; what has been written must be visible behind it.
  virtual void DialogOpens() {}
};

}  // namespace quill
