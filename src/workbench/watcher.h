// Who watches the window model: the real window, and tests.
#pragma once

#include "text/document.h"

namespace quill {

class Control;
class ListBox;
class ComboBox;

// Which property of a control was written with a new value.
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

// Calls arrive inside the write, in the order of the writes. A watcher only looks: it must not
// write to the model before the action has ended.
class Watcher {
 public:
  virtual ~Watcher() = default;

  virtual void PropertyChanged(Control& /*control*/, PropertyId /*property*/) {}
  // Of one item that came or went, its index is told; of more, only that they changed.
  virtual void ItemsChanged(ListBox& /*list*/) {}
  virtual void ItemInserted(ListBox& /*list*/, int /*index*/) {}
  virtual void ItemRemoved(ListBox& /*list*/, int /*index*/) {}
  virtual void RowChanged(ComboBox& /*combo*/, int /*row*/) {}
  // Another text is about to take the place of this one: the last look at it.
  virtual void TextLeaves() {}
  // The whole text is another one.
  virtual void TextLoaded() {}
  // `inserted` characters stand at `at` where `removed` characters stood.
  virtual void TextReplaced(Position /*at*/, Position /*removed*/, Position /*inserted*/) {}
  // Attributes of the range changed; every character of it may differ from what was shown.
  virtual void FormatChanged(Range /*range*/) {}
  virtual void SelectionChanged() {}
  // Whether the selection of the text is to be scrolled into sight; the last word counts.
  virtual void RevealAsked(bool /*reveal*/) {}
  virtual void FocusMoved() {}
  // A modal dialog is about to open; whatever was written is to be on show behind it.
  virtual void DialogOpens() {}
};

}  // namespace quill
