#include "tags/tag_editor.h"

#include <initializer_list>
#include <string>
#include <string_view>

#include "tags/tag_record.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// Rows are replaced or added, never removed: the fifth row of the relative types remains after the
// four absolute ones. That is intended.
void WriteRows(ComboBox& combo, std::initializer_list<std::u32string_view> rows) {
  int row = 0;
  for (const std::u32string_view text : rows) combo.SetList(row++, text);
}

}  // namespace

void ResetTagEditor(Form1& form) {
  form.TaggedString.Text = U" ";
  form.marked_term.Text = U" ";
  form.ID.Text = Placeholder::kId;
  form.StartPosition.Text = Placeholder::kStart;
  form.EndPosition.Text = Placeholder::kEnd;
  form.ClassCombo.Text = Placeholder::kClass;
  form.OperatorCombo.Text = Placeholder::kOperator;
  form.ModeCombo.Text = Placeholder::kMode;
  form.TypeCombo.Text = Placeholder::kType;
  form.GranCombo.Text = Placeholder::kGranularity;
  form.ValBox.Text = Placeholder::kValue;
  form.TagList.ListIndex = -1;
  form.RefTagStart.Text = U" ";
  form.RefTagStop.Text = U" ";
  form.RefBox.Text = Placeholder::kRefTerm;
  form.Generate_Tag.Enabled = false;
}

void ApplyTagEditorRules(Form1& form) {
  form.ClassCombo.Enabled = form.StartPosition.Text != Placeholder::kStart;
  // The first row of the list is "Class" and a tab, so picking it counts as choosing a class. That
  // is intended.
  form.OperatorCombo.Enabled = form.ClassCombo.Text != Placeholder::kClass;
  form.ModeCombo.Enabled = form.OperatorCombo.Text != form.OperatorCombo.List(kPlaceholderRow);
  form.TypeCombo.Enabled = form.ModeCombo.Text != Placeholder::kMode;
  form.RefFrame.Visible = form.ModeCombo.Text == form.ModeCombo.List(ModeRow::kRelative);
  // Without a type, this leaves RefTag and Generate_Tag as they are. That is intended.
  if (form.TypeCombo.Text == Placeholder::kType) {
    form.GranCombo.Enabled = false;
    form.ValBox.Enabled = false;
  } else {
    form.GranCombo.Enabled = true;
    form.ValBox.Enabled = true;
    form.RefTag.Enabled =
        !(form.RefFrame.Visible && form.GranCombo.Text == Placeholder::kGranularity);
    form.Generate_Tag.Enabled = form.RefFrame.Visible && form.RefBox.Text != Placeholder::kRefTerm;
  }
  if (form.ModeCombo.Text == form.ModeCombo.List(ModeRow::kAbsolute) &&
      form.ValBox.Text != Placeholder::kValue) {
    form.Generate_Tag.Enabled = true;
  }
}

void ClassCombo_Click(Form1& form) { ApplyTagEditorRules(form); }

void OperatorCombo_Click(Form1& form) { ApplyTagEditorRules(form); }

void ModeCombo_Click(Form1& form) {
  if (form.ModeCombo.Text == form.ModeCombo.List(ModeRow::kAbsolute)) {
    form.RefFrame.Visible = false;
    WriteRows(form.TypeCombo, {Placeholder::kType, U"at", U"start", U"finishes"});
  }
  if (form.ModeCombo.Text == form.ModeCombo.List(ModeRow::kRelative)) {
    form.RefFrame.Visible = true;
    WriteRows(form.TypeCombo, {Placeholder::kType, U"before", U"after", U"while", U"same"});
  }
  // Until a mode has been picked, the list is empty.
  form.TypeCombo.Text = form.TypeCombo.ListCount() > 0 ? form.TypeCombo.List(kPlaceholderRow) : U"";
  ApplyTagEditorRules(form);
}

void TypeCombo_Click(Form1& form) { ApplyTagEditorRules(form); }

void GranCombo_Click(Form1& form) { ApplyTagEditorRules(form); }

void ValBox_Change(Form1& form) { ApplyTagEditorRules(form); }

}  // namespace quill
