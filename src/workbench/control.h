// The kinds of control: what each offers to the handlers, and the events that it raises.
//
// A control is a part of its form and lives as long. It finds its stored values in the catalogue
// by its name. Event slots hold the handlers; the program attaches them, and an empty slot raises
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

  // Whether a user can reach it: it and all that contains it are enabled and visible.
  bool IsInReach() const;
  // Moves the keyboard focus here, as a statement of a handler: a GotFocus that this raises runs
  // after the handler. A control out of reach takes no focus.
  void SetFocus();

  Property<bool> Enabled;
  Property<bool> Visible;

  // Called by a property after a write that changed it.
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

  // Item i, from 0. Outside the list it fails.
  const std::u32string& List(int i) const;
  // Replaces item i, or appends where i is the number of items. Beyond that it fails.
  void SetList(int i, std::u32string_view text);
  int ListCount() const { return static_cast<int>(items_.size()); }

  Handler Click = nullptr;
  // A user's pick: the text becomes the row, then Click runs. The row must exist.
  void Pick(int row);

 private:
  std::vector<std::u32string> items_;
};

class ListBox : public Control {
  int ReadListIndex() const { return listIndex_; }
  void WriteListIndex(int i);

 public:
  // A list counts its items in sixteen bits.
  static constexpr int kMostItems = 32767;

  ListBox(Form1& form, std::string_view name);

  // Appends, or inserts at the sorted place, behind the items that compare equal. A full list
  // fails. ListIndex keeps its number.
  void AddItem(std::u32string_view text);
  // Adds texts one after the other, in one go; those that a full list has no room for are left out.
  void AddItems(const std::vector<std::u32string>& texts);
  // Outside the list it fails.
  void RemoveItem(int i);
  void Clear();
  const std::u32string& List(int i) const;
  int ListCount() const { return static_cast<int>(items_.size()); }
  const std::vector<std::u32string>& Items() const { return items_; }

  // -1 for none. Writing a new index raises Click before the write returns; an index outside the
  // list fails.
  Accessor<ListBox, &ListBox::ReadListIndex, &ListBox::WriteListIndex> ListIndex{*this};

  Handler Click = nullptr;
  // A user's click on an item, which must exist: it becomes the selected one and Click runs, also
  // when it was selected already.
  void ClickItem(int i);

 private:
  void Select(int i);
  void SortFrom(std::ptrdiff_t unsorted);

  std::vector<std::u32string> items_;
  std::vector<std::string> keys_;  // of a sorted list: the items' places in the order
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

// The one file dialog, which serves all purposes.
class CommonDialog : public Control {
 public:
  CommonDialog(Form1& form, std::string_view name);

  std::u32string DialogTitle;
  std::u32string Filter;
  std::u32string FileName;  // empty after a cancel, and at the start

  void ShowOpen();
  void ShowSave();
};

}  // namespace quill
