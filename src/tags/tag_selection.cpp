#include "tags/tag_selection.h"

#include "tags/tag_editor.h"
#include "tags/tag_record.h"
#include "text/marks.h"
#include "text/numbers.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The rows of TypeCombo remain those of the mode that the user last picked, whatever the tag's
// mode. That is intended.
void FillEditor(Form1& form, const std::u32string& line, const TagFields& fields) {
  form.TaggedString.Text = line;
  form.marked_term.Text = std::u32string(fields[TagField::kTerm]);
  form.ID.Text = std::u32string(fields[TagField::kId]);
  form.StartPosition.Text = std::u32string(fields[TagField::kStart]);
  form.EndPosition.Text = std::u32string(fields[TagField::kEnd]);
  form.SessionID.Text = std::u32string(fields[TagField::kSessionId]);
  form.UserID1.Text = std::u32string(fields[TagField::kUserId]);
  form.ClassCombo.Text = std::u32string(fields[TagField::kClass]);
  form.OperatorCombo.Text = std::u32string(fields[TagField::kOperator]);
  form.ModeCombo.Text = std::u32string(fields[TagField::kMode]);
  form.RefFrame.Visible = fields[TagField::kMode] == form.ModeCombo.List(ModeRow::kRelative);
  form.TypeCombo.Text = std::u32string(fields[TagField::kType]);
  form.GranCombo.Text = std::u32string(fields[TagField::kGranularity]);
  form.ValBox.Text = std::u32string(fields[TagField::kValue]);
  form.RefBox.Text = std::u32string(fields[TagField::kRefTerm]);
  form.RefTagStart.Text = DecimalText(Val(fields[TagField::kRefStart]));
  form.RefTagStop.Text = DecimalText(Val(fields[TagField::kRefStop]));
}

// A tag without a reference has a blank or a 0 as the reference's start.
void ShowReference(Form1& form, const TagFields& fields) {
  const double start = Val(fields[TagField::kRefStart]);
  if (start == 0) return;
  form.RichTextBox1.SetFocus();
  form.RichTextBox1.SelectSpan(start, Val(fields[TagField::kRefStop]));
  form.RichTextBox1.SelUnderline = true;
}

}  // namespace

void TagList_Click(Form1& form) {
  if (form.TagList.ListIndex == -1) return;
  const std::u32string line = form.TagList.List(form.TagList.ListIndex);
  form.WorkState.CurrentTag = line;
  const TagFields fields = CutTag(line);
  FillEditor(form, line, fields);
  if (const auto kind = KindOfTag(fields[TagField::kOperator])) {
    form.TaggedString.ForeColor = MarkColour(*kind);
  }
  ShowReference(form, fields);
  form.RichTextBox1.SetFocus();
  form.RichTextBox1.SelectSpan(Val(fields[TagField::kStart]), Val(fields[TagField::kEnd]));
  form.RichTextBox1.Reveal();
  ApplyTagEditorRules(form);
  form.RemoveItem.Enabled = true;
}

}  // namespace quill
