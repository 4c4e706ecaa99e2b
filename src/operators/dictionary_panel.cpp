#include "operators/dictionary_panel.h"

#include "workbench/form1.h"

namespace quill {

void add_to_dictionary_Change(Form1& form) {
  form.A_type_add.Enabled = true;
  form.B_type_add.Enabled = true;
  form.operator_category.Text = U" ";
  form.Frame1.Enabled = true;
}

void add_to_dictionary_GotFocus(Form1& form) { form.add_to_dictionary.Text = U" "; }

void Text2_GotFocus(Form1& form) { form.Text2.Text = U" "; }

}  // namespace quill
