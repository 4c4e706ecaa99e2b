#include "workbench/control.h"

#include "workbench/form1.h"

namespace quill {

template <class T>
Property<T>& Property<T>::operator=(T value) {
  if (value == value_) return *this;
  value_ = std::move(value);
  Tell();
  return *this;
}

template <class T>
void Property<T>::Tell() {
  owner_.Written(id_);
}

template class Property<bool>;
template class Property<Colour>;
template class Property<std::u32string>;

Control::Control(Form1& form, std::string_view name)
    : Enabled(*this, PropertyId::kEnabled, RowOf(name).stored.enabled),
      Visible(*this, PropertyId::kVisible, RowOf(name).stored.visible),
      form_(form),
      row_(RowOf(name)) {
  if (row_.kind != quill::Kind::kForm) form.Enter(*this);
}

bool Control::IsInReach() const {
  const Control* control = this;
  while (control->Enabled && control->Visible) {
    if (control == &form_) return true;
    control = &form_.ContainerOf(*control);
  }
  return false;
}

void Control::SetFocus() {
  if (!IsInReach() || !form_.MoveFocus(*this)) return;
  const auto* box = dynamic_cast<const TextBox*>(this);
  if (box != nullptr && box->GotFocus != nullptr) form_.QueueFocusEvent(box->GotFocus);
}

void Control::Written(PropertyId property) { form_.TheWatcher().PropertyChanged(*this, property); }

void Control::Raise(Handler handler) {
  if (handler != nullptr) handler(form_);
}

TextBox::TextBox(Form1& form, std::string_view name)
    : Control(form, name),
      Text(*this, PropertyId::kText, std::u32string(Row().text)),
      BackColor(*this, PropertyId::kBackColor, Row().stored.backColor),
      ForeColor(*this, PropertyId::kForeColor, Row().stored.foreColor),
      FontBold(*this, PropertyId::kFontBold, Row().stored.bold) {}

void TextBox::Written(PropertyId property) {
  Control::Written(property);
  if (property == PropertyId::kText) Raise(Change);
}

CommonDialog::CommonDialog(Form1& form, std::string_view name) : Control(form, name) {}

void CommonDialog::ShowOpen() {
  Form().TheWatcher().DialogOpens();
  FileName = Form().TheDialogs().ShowOpen(DialogTitle, Filter).value_or(U"");
}

void CommonDialog::ShowSave() {
  Form().TheWatcher().DialogOpens();
  FileName = Form().TheDialogs().ShowSave(DialogTitle, Filter, FileName).value_or(U"");
}

}  // namespace quill
