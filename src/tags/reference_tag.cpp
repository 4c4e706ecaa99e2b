#include "tags/reference_tag.h"

#include "tags/covering_tag.h"
#include "tags/tag_editor.h"
#include "tags/tag_record.h"
#include "text/numbers.h"
#include "workbench/form1.h"

namespace quill {

void RefTag_Click(Form1& form) {
  form.RefBox.Text = form.RichTextBox1.SelText();
  FindReferenceTag(form);
  ApplyTagEditorRules(form);
}

void FindReferenceTag(Form1& form) {
  form.RefTagStart.Text = U" ";
  form.RefTagStop.Text = U" ";
  if (!HasTagsToLookFor(form)) return;
  const std::optional<int> found = FindCoveringTag(form.TagList, form.RichTextBox1.SelStart);
  if (!found) return;
  const TagSpan span = CutTagSpan(form.TagList.List(*found));
  form.RichTextBox1.SelectSpan(span.start, span.end);
  // The whole term, also where the user selected a part of it.
  form.RefBox.Text = form.RichTextBox1.SelText();
  form.RefTagStart.Text = DecimalText(span.start);
  form.RefTagStop.Text = DecimalText(span.end);
  form.RichTextBox1.SelUnderline = true;
  form.RichTextBox1.SetFocus();
  form.RichTextBox1.SelectSpan(Val(form.StartPosition.Text.Get()),
                               Val(form.EndPosition.Text.Get()));
  form.RichTextBox1.Reveal();
}

}  // namespace quill
