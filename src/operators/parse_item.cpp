#include "operators/parse_item.h"

#include "operators/dictionary_entry.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {

bool HasItems(Form1& form) {
  if (form.Parse_listbox.ListCount() > 0) return true;
  form.MsgBox({.prompt = U"You have to read in or specify operator terms first.",
               .title = U"Input required"});
  return false;
}

bool HasSelectedItem(Form1& form) {
  if (form.Parse_listbox.ListIndex != -1) return true;
  form.MsgBox(
      {.prompt = U"Click on the operator you wish to parse for.", .title = U"Input required"});
  return false;
}

void TakeItem(Form1& form) {
  CarryOn([&] { form.WorkState.ParseLine = form.Parse_listbox.List(form.WorkState.ParseIndex); });
  const std::u32string& line = form.WorkState.ParseLine.Get();
  const ItemParts parts = CutItem(line);
  if (parts.Lemma) form.WorkState.ParseTerm = std::u32string(*parts.Lemma);
  form.WorkState.ParseCategory = std::u32string(parts.Category);
  form.WorkState.ParsePos = 1;
  form.WorkState.TextLen = form.RichTextBox1.Length();
}

}  // namespace quill
