#include "program/program.h"

#include "program/attach.h"
#include "text/unicode.h"
#include "workbench/failure.h"

namespace quill {
namespace {

// The editable text of a box; nullptr for other controls.
Property<std::u32string>* EditLine(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) return &box->Text;
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) return &combo->Text;
  return nullptr;
}

// A carriage return from the user is the Enter key. In the text itself and in the program's own
// keystrokes it is a character like any other.
char32_t UserKey(char32_t key) { return key == U'\r' ? kParagraphEnd : key; }

// A pasted or dropped text, with every line end (CR LF, LF or CR) turned into a paragraph end.
std::u32string WithParagraphEnds(std::u32string_view text) {
  std::u32string ended;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == kParagraphEnd;
    if (!isPair) ended += UserKey(text[i]);
  }
  return ended;
}

}  // namespace

Program::Program(Dialogs& dialogs, Disk& disk) : form_(dialogs, disk) { AttachHandlers(form_); }

template <class Action>
void Program::Run(Action&& action) {
  if (ended_) return;
  try {
    // A failure that the handler did not deal with ends it; what it queued is delivered.
    CarryOn(action);
    Deliver();
  } catch (const ProgramEnd&) {
    ended_ = true;
  }
}

void Program::Deliver() {
  for (;;) {
    const std::vector<Handler> focusEvents = form_.TakeFocusEvents();
    const std::u32string keys = focusEvents.empty() ? form_.TakeKeys() : std::u32string();
    if (focusEvents.empty() && keys.empty()) return;
    for (const Handler handler : focusEvents) CarryOn([&] { handler(form_); });
    CarryOn([&] { DeliverKeys(keys); });
  }
}

void Program::DeliverKeys(std::u32string_view keys) {
  Control* const target = form_.Focus();
  if (target == nullptr || keys.empty()) return;
  if (target == &form_.RichTextBox1) {
    // All keys arrive together, as one edit.
    if (target->IsInReach()) form_.RichTextBox1.TypeOver(keys);
    return;
  }
  for (const char32_t key : keys) Key(*target, key, false);
}

void Program::Click(CommandButton& button) {
  if (!button.IsInReach()) return;
  Run([&] {
    form_.MoveFocus(button);
    if (button.Click != nullptr) button.Click(form_);
  });
}

void Program::Click(MenuItem& item) {
  if (!item.IsInReach()) return;
  Run([&] {
    if (item.Click != nullptr) item.Click(form_);
  });
}

void Program::PressKeyFor(CommandButton& button) {
  if (!button.IsInReach()) return;
  Run([&] {
    if (button.Click != nullptr) button.Click(form_);
  });
}

void Program::ClickItem(ListBox& list, int item) {
  if (!list.IsInReach()) return;
  Run([&] {
    form_.MoveFocus(list);
    list.ClickItem(item);
  });
}

void Program::Pick(ComboBox& combo, int row) {
  if (!combo.IsInReach()) return;
  Run([&] {
    form_.MoveFocus(combo);
    combo.Pick(row);
  });
}

void Program::GoInto(Control& control) {
  if (!control.IsInReach()) return;
  Run([&] {
    const bool moved = form_.MoveFocus(control);
    const auto* box = dynamic_cast<const TextBox*>(&control);
    if (moved && box != nullptr && box->GotFocus != nullptr) box->GotFocus(form_);
  });
}

void Program::Type(Control& control, std::u32string_view text) {
  GoInto(control);
  for (const char32_t key : text) {
    Run([&] { Key(control, UserKey(key), false); });
  }
}

void Program::Enter(Control& control, std::u32string_view text) {
  GoInto(control);
  if (text.empty()) {
    Edit(control, U"");
    return;
  }
  bool overAll = true;
  for (const char32_t key : text) {
    Run([&] { overAll = !Key(control, UserKey(key), overAll) && overAll; });
  }
}

void Program::Edit(Control& box, std::u32string_view text) {
  Property<std::u32string>* const line = EditLine(box);
  if (line == nullptr || !box.IsInReach()) return;
  Run([&] { *line = std::u32string(text); });
}

void Program::Select(Position start, Position length) {
  GoInto(form_.RichTextBox1);
  Run([&] { form_.RichTextBox1.UserSelects(start, length); });
}

void Program::Close() {
  Run([&] { form_.End(); });
}

void Program::DeleteInText(Range range) {
  Run([&] { form_.RichTextBox1.UserDeletes(range); });
}

void Program::TypeInText(std::u32string_view text) {
  Run([&] { form_.RichTextBox1.TypeOver(WithParagraphEnds(text)); });
}

void Program::UndoInText() {
  Run([&] { form_.RichTextBox1.Undo(); });
}

void Program::RedoInText() {
  Run([&] { form_.RichTextBox1.Redo(); });
}

// Returns whether the control took the key.
bool Program::Key(Control& control, char32_t key, bool overAll) {
  if (!control.IsInReach()) return false;
  if (&control == &form_.RichTextBox1) {
    form_.RichTextBox1.TypeOver(std::u32string_view(&key, 1));
    return true;
  }
  Property<std::u32string>* const line = EditLine(control);
  if (line == nullptr) return false;
  // The Enter key types a line end in a multi-line box and does nothing in a single-line one.
  if (key == kParagraphEnd && !control.Row().stored.multiLine) return false;
  if (overAll) {
    *line = std::u32string(1, key);
  } else {
    *line += key;
  }
  return true;
}

}  // namespace quill
