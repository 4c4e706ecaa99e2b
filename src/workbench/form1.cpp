#include "workbench/form1.h"

#include <stdexcept>

namespace quill {

Form1::Form1(Dialogs& dialogs, Disk& disk)
    : Control(*this, "Form1"),
      Caption(*this, PropertyId::kCaption, std::u32string(RowOf("Form1").text)),
      dialogs_(dialogs),
      disk_(disk) {
  if (controls_.size() + 1 != Catalogue().size()) {
    throw std::logic_error("the catalogue and the form hold different controls");
  }
}

Control* Form1::Find(std::string_view name) const {
  for (Control* control : controls_) {
    if (control->Name() == name) return control;
  }
  return nullptr;
}

Control& Form1::ContainerOf(const Control& control) const {
  const std::string_view name = control.Row().container;
  Control* const container = Find(name);
  return container != nullptr ? *container : Form();
}

void Form1::Enter(Control& control) { controls_.push_back(&control); }

Button Form1::MsgBox(const MessageBox& box) {
  watcher_->DialogOpens();
  return dialogs_.MsgBox(box);
}

bool Form1::MoveFocus(Control& control) {
  if (focus_ == &control) return false;
  focus_ = &control;
  watcher_->FocusMoved();
  return true;
}

void Form1::SetWatcher(Watcher* watcher) { watcher_ = watcher != nullptr ? watcher : &nobody_; }

}  // namespace quill
