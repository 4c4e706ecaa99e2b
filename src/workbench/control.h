// The kinds of control: what each offers to the handlers, and the events that it raises.
//
// A control is a member of its form and lives as long. It takes its stored values from the
// catalogue, by name. Event slots hold the handlers that the program attaches; an empty slot raises
// nothing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/catalogue.h"
#include "workbench/property.h"

namespace quill {

class Form1;
using Handler = void (*)(Form1&);

class Control {
 public:
  Control(Form1& form, std::string_view name);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  std::string_view Name() const { return row_.name; }
  quill::Kind Kind() const { return row_.kind; }
  const CatalogueRow& Row() const { return row_; }
  Form1& Form() const { return form_; }

  // Whether the user can reach it: whether it and all its containers are enabled and visible.
  bool IsInReach() const;
  // Moves the keyboard focus here on behalf of a handler; a GotFocus that this raises runs after
  // that handler. A control out of reach takes no focus.
  void SetFocus();

  Property<bool> Enabled;
  Property<bool> Visible;

  // Called by a property after its value has changed.
  virtual void Written(PropertyId property);

 protected:
  void Raise(Handler handler);

 private:
  Form1& form_;
  const CatalogueRow& row_;
};

class TextBox : public Control {
 public:
  TextBox(Form1& form, std::string_view name);

  Property<std::u32string> Text;
  Property<Colour> BackColor;
  Property<Colour> ForeColor;
  Property<bool> FontBold;

  Handler Change = nullptr;
  Handler GotFocus = nullptr;

  void Written(PropertyId property) override;
};

class ComboBox : public Control {
 public:
  ComboBox(Form1& form, std::string_view name);

  Property<std::u32string> Text;  // the edit line; writing it raises nothing

  // Item i, 0-based. Fails outside the list.
  const std::u32string& List(int i) const;
  // Replaces item i, or appends if i is the number of items. Fails beyond that.
  void SetList(int i, std::u32string_view text);
  int ListCount() const { return static_cast<int>(items_.size()); }

  Handler Click = nullptr;
  // The user picks a row, which must exist: it becomes the text, then Click runs.
  void Pick(int row);

 private:
  std::vector<std::u32string> items_;
};

class ListBox : public Control {
  int ReadListIndex() const { return listIndex_; }
  void WriteListIndex(int i);

 public:
  // Items are counted in 16 bits.
  static constexpr int kMostItems = 32767;

  ListBox(Form1& form, std::string_view name);

  // Appends or, in a sorted list, inserts after the items that compare equal. Fails if the list is
  // full. ListIndex keeps its number, whichever item that now is.
  void AddItem(std::u32string_view text);
  // As AddItem for each in turn, at one cost; those for which a full list has no room are left out.
  void AddItems(const std::vector<std::u32string>& texts);
  // Fails outside the list.
  void RemoveItem(int i);
  void Clear();
  const std::u32string& List(int i) const;
  int ListCount() const { return static_cast<int>(items_.size()); }
  const std::vector<std::u32string>& Items() const { return items_; }

  // -1 for none. Writing a new index raises Click before the write returns; one outside the list
  // fails.
  Accessor<ListBox, &ListBox::ReadListIndex, &ListBox::WriteListIndex> ListIndex{*this};

  Handler Click = nullptr;
  // The user clicks an item, which must exist: it is selected and Click runs, even if it was
  // already selected.
  void ClickItem(int i);

 private:
  void Select(int i);
  void SortFrom(std::ptrdiff_t unsorted);

  std::vector<std::u32string> items_;
  std::vector<std::string> keys_;  // of a sorted list: the items' collation keys
  int listIndex_ = -1;
  bool sorted_;
};

class CommandButton : public Control {
 public:
  using Control::Control;
  Handler Click = nullptr;
};

class Frame : public Control {
 public:
  using Control::Control;
};

class Label : public Control {
 public:
  using Control::Control;
};

class MenuItem : public Control {
 public:
  using Control::Control;
  Handler Click = nullptr;
};

// The one file dialog, for opening and saving alike.
class CommonDialog : public Control {
 public:
  CommonDialog(Form1& form, std::string_view name);

  std::u32string DialogTitle;
  std::u32string Filter;
  std::u32string FileName;  // empty at first and after a cancel

  void ShowOpen();
  void ShowSave();
};

}  // namespace quill
