#include "tags/covering_tag.h"

#include "tags/tag_record.h"
#include "workbench/form1.h"

namespace quill {

bool HasTagsToLookFor(const Form1& form) {
  return form.PostFrame.Visible && form.RichTextBox1.Text() != U" " && form.TagList.ListCount() > 0;
}

std::optional<int> FindCoveringTag(const ListBox& list, Position caret) {
  const auto at = static_cast<double>(caret);
  for (int i = 0; i < list.ListCount(); ++i) {
    const TagSpan span = CutTagSpan(list.List(i));
    if (span.start <= at + 1 && at <= span.end) return i;
  }
  return std::nullopt;
}

}  // namespace quill
