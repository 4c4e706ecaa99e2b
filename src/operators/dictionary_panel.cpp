#include "operators/dictionary_panel.h"

#include "disk/text_lines.h"
#include "operators/dictionary_entry.h"
#include "text/marks.h"
#include "text/unicode.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

constexpr std::u32string_view kEmptyBox = U" ";

void ChooseKind(Form1& form, OperatorKind kind) {
  if (form.add_to_dictionary.Text == kEmptyBox) {
    ResetDictionaryPanel(form);
    return;
  }
  form.Add_to_spec_dict.Enabled = true;
  form.Add_to_global_dict.Enabled = true;
  form.operator_category.Text = std::u32string(CategoryOf(kind));
  form.add_to_dictionary.BackColor = FoundColour(kind);
}

void Refuse(Form1& form) {
  form.MsgBox({.prompt = U"You have entered one of the reserved characters = \\, |, <, >. Please "
                         U"re-type without any "
                         U"of these.",
               .title = U"Wrong entry!",
               .icon = MessageBox::Icon::kCritical});
  form.add_to_dictionary.Text = U" ";
  form.add_to_dictionary.SetFocus();
  form.add_to_dictionary.BackColor = kWindowBackground;
  ResetDictionaryPanel(form);
}

void Add(Form1& form, std::u32string_view dictionary) {
  const OperatorEntry entry{.Lemma = form.add_to_dictionary.Text,
                            .Category = form.operator_category.Text,
                            .Definition = form.Text2.Text};
  CarryOn([&] { form.Parse_listbox.AddItem(ListForm(entry)); });
  CarryOn([&] { form.TheDisk().AppendLine(EncodePath(dictionary), EncodeLine(FileForm(entry))); });
  ResetDictionaryPanel(form);
  form.add_to_dictionary.BackColor = kNoLemmaKind;
  form.RichTextBox1.SetFocus();
}

void AddUnlessRefused(Form1& form, std::u32string_view dictionary) {
  const std::u32string& lemma = form.add_to_dictionary.Text;
  if (lemma.find_first_of(kReservedCharacters) != std::u32string::npos) {
    Refuse(form);
  } else if (lemma == kEmptyBox) {
    ResetDictionaryPanel(form);
  } else {
    Add(form, dictionary);
  }
}

}  // namespace

void add_to_dictionary_Change(Form1& form) {
  form.A_type_add.Enabled = true;
  form.B_type_add.Enabled = true;
  form.operator_category.Text = U" ";
  form.Frame1.Enabled = true;
}

void add_to_dictionary_GotFocus(Form1& form) { form.add_to_dictionary.Text = U" "; }

void Text2_GotFocus(Form1& form) { form.Text2.Text = U" "; }

void A_type_add_Click(Form1& form) { ChooseKind(form, OperatorKind::kA); }

void B_type_add_Click(Form1& form) { ChooseKind(form, OperatorKind::kB); }

void Add_to_global_dict_Click(Form1& form) { AddUnlessRefused(form, kGlobalDictionary); }

void Add_to_spec_dict_Click(Form1& form) {
  AddUnlessRefused(form, form.WorkState.SpecificDictFile.Get());
}

void ResetDictionaryPanel(Form1& form) {
  form.Text2.Text = U"Definition?";
  form.add_to_dictionary.Text = U"Lemma?";
  form.Add_to_spec_dict.Enabled = false;
  form.Add_to_global_dict.Enabled = false;
  form.A_type_add.Enabled = false;
  form.B_type_add.Enabled = false;
  form.Frame1.Enabled = false;
}

}  // namespace quill
