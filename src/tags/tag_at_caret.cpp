#include "tags/tag_at_caret.h"

#include <optional>

#include "tags/tag_editor.h"
#include "tags/tag_record.h"
#include "text/numbers.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The index of the tag's line, if any. A line that cannot be cut counts as holding the caret at 0.
std::optional<int> FindTagAt(const Form1& form, Position caret) {
  if (!form.PostFrame.Visible || form.RichTextBox1.Text() == U" ") return std::nullopt;
  const auto at = static_cast<double>(caret);
  for (int i = 0; i < form.TagList.ListCount(); ++i) {
    const TagSpan span = CutTagSpan(form.TagList.List(i));
    if (span.start <= at + 1 && at <= span.end) return i;
  }
  return std::nullopt;
}

// Shows the tag that holds the caret.
void FindTagAtCaret(Form1& form) {
  const std::optional<int> found = FindTagAt(form, form.WorkState.CaretPos);
  if (!found) return;
  form.TagList.ListIndex = *found;
  const TagSpan span = CutTagSpan(form.TagList.List(*found));
  form.RichTextBox1.SelectSpan(span.start, span.end);
}

// Makes the tag that holds the caret the reference of the term being edited.
void FindReferenceTag(Form1& form) {
  form.RefTagStart.Text = U" ";
  form.RefTagStop.Text = U" ";
  TextSurface& text = form.RichTextBox1;
  const std::optional<int> found = FindTagAt(form, text.SelStart);
  if (!found) return;
  const TagSpan span = CutTagSpan(form.TagList.List(*found));
  text.SelectSpan(span.start, span.end);
  // The whole term, even if the user selected only part of it.
  form.RefBox.Text = text.SelText();
  form.RefTagStart.Text = DecimalText(span.start);
  form.RefTagStop.Text = DecimalText(span.end);
  text.SelUnderline = true;
  text.SetFocus();
  text.SelectSpan(Val(form.StartPosition.Text.Get()), Val(form.EndPosition.Text.Get()));
  text.Reveal();
}

}  // namespace

void TagChecker_Click(Form1& form) {
  form.WorkState.CaretPos = form.RichTextBox1.SelStart.Get();
  ResetTagEditor(form);
  FindTagAtCaret(form);
}

void RefTag_Click(Form1& form) {
  form.RefBox.Text = form.RichTextBox1.SelText();
  FindReferenceTag(form);
  ApplyTagEditorRules(form);
}

}  // namespace quill
