#include "tags/tag_check.h"

#include "tags/covering_tag.h"
#include "tags/tag_editor.h"
#include "tags/tag_record.h"
#include "workbench/form1.h"

namespace quill {

void TagChecker_Click(Form1& form) {
  form.WorkState.CaretPos = form.RichTextBox1.SelStart.Get();
  ResetTagEditor(form);
  FindTagAtCaret(form);
}

void FindTagAtCaret(Form1& form) {
  if (!HasTagsToLookFor(form)) return;
  const auto caret = static_cast<Position>(form.WorkState.CaretPos.Number());
  if (const std::optional<int> found = FindCoveringTag(form.TagList, caret)) {
    form.TagList.ListIndex = *found;
    const TagSpan span = CutTagSpan(form.TagList.List(*found));
    form.RichTextBox1.SelectSpan(span.start, span.end);
  }
  form.RichTextBox1.Refresh();
}

}  // namespace quill
