#include "tags/tag_generation.h"

#include "tags/tag_list_file.h"
#include "tags/tag_record.h"
#include "text/marks.h"
#include "text/numbers.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The tag in the tag editor, whatever its mode, as views of the controls' texts.
TagFields EditorFields(const Form1& form) {
  return {
      form.ID.Text.Get(),          form.StartPosition.Text.Get(), form.EndPosition.Text.Get(),
      form.marked_term.Text.Get(), form.SessionID.Text.Get(),     form.UserID1.Text.Get(),
      form.ClassCombo.Text.Get(),  form.OperatorCombo.Text.Get(), form.ModeCombo.Text.Get(),
      form.TypeCombo.Text.Get(),   form.GranCombo.Text.Get(),     form.ValBox.Text.Get(),
      form.RefBox.Text.Get(),      form.RefTagStart.Text.Get(),   form.RefTagStop.Text.Get(),
  };
}

// Magenta warns of a tag that is not filled in. Three of the five texts are not placeholders of
// this form: a tag that shows "Operator", "Mode" or "Value ?" gets no warning. That is intended.
void ColourTaggedString(Form1& form) {
  if (const auto kind = KindOfTag(form.OperatorCombo.Text.Get())) {
    form.TaggedString.ForeColor = MarkColour(*kind);
  }
  if (form.ClassCombo.Text == Placeholder::kClass || form.OperatorCombo.Text == U"Function" ||
      form.ModeCombo.Text == U"Order" || form.TypeCombo.Text == Placeholder::kType ||
      form.ValBox.Text == U"Value?") {
    form.TaggedString.ForeColor = kNotFilledIn;
  }
}

}  // namespace

void Generate_Tag_Click(Form1& form) {
  if (form.StartPosition.Text == Placeholder::kStart) return;
  if (form.EndPosition.Text == Placeholder::kEnd) return;
  if (form.TagList.ListIndex != -1) TakeSelectedTag(form);
  AssignNextTagID(form);
  form.ID.Text = TextOf(form.WorkState.NextTagID);
  form.WorkState.GeneratedTag = ComposeTag(EditorFields(form));
  ColourTaggedString(form);
  form.TaggedString.Text = form.WorkState.GeneratedTag.Get();
  ApplyTagToText(form);
}

void AssignNextTagID(Form1& form) {
  if (form.TagList.ListCount() == 0) {
    form.WorkState.NextTagID = 1;
    return;
  }
  const std::u32string& last = form.TagList.List(form.TagList.ListCount() - 1);
  if (const auto number = CutTagNumber(last)) form.WorkState.NextTagID = *number + 1;
}

void ApplyTagToText(Form1& form) {
  form.WorkState.TagStart = Val(form.StartPosition.Text.Get());
  form.WorkState.TagEnd = Val(form.EndPosition.Text.Get());
  form.RichTextBox1.SetFocus();
  form.RichTextBox1.SelectSpan(form.WorkState.TagStart, form.WorkState.TagEnd);
  form.RichTextBox1.SelCharOffset = kRaised;
  form.RichTextBox1.SelBold = false;
  if (const auto kind = KindOfTag(form.OperatorCombo.Text.Get())) {
    form.RichTextBox1.SelColor = MarkColour(*kind);
  }
  CarryOn([&] { form.TagList.AddItem(form.WorkState.GeneratedTag.Get()); });
  CarryOn([&] { EnsureTagListFile(form); });
  CarryOn([&] { AppendGeneratedTag(form); });
  form.RefFrame.Visible = false;
  form.RichTextBox1.ClearUnderlines();
}

}  // namespace quill
