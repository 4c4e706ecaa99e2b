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
  if (const auto found = FindCoveringTag(form.TagList, form.WorkState.CaretPos)) {
    form.TagList.ListIndex = *found;
    const TagSpan span = CutTagSpan(form.TagList.List(*found));
    form.RichTextBox1.SelectSpan(span.start, span.end);
  }
}

}  // namespace quill
