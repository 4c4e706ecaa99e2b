#include "tags/tag_removal.h"

#include <optional>
#include <string>

#include "tags/tag_editor.h"
#include "tags/tag_list_file.h"
#include "tags/tag_record.h"
#include "tags/tag_selection.h"
#include "text/marks.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The first line that tags the same word. One that tags it elsewhere in the text counts, too, and
// the mark of the removed tag then stays. That is intended.
std::optional<int> FindTagOf(const ListBox& list, std::u32string_view term) {
  for (int i = 0; i < list.ListCount(); ++i) {
    if (CutTag(list.List(i), TagField::kTerm + 1)[TagField::kTerm] == term) return i;
  }
  return std::nullopt;
}

// TagList_Click runs twice, the first time raised by the new ListIndex. That is intended.
void ShowOtherTag(Form1& form, int index) {
  form.TagList.ListIndex = index;
  TagList_Click(form);
  const std::optional<OperatorKind> kind = KindOfTag(form.OperatorCombo.Text.Get());
  form.RichTextBox1.SelColor = MarkColour(kind.value_or(OperatorKind::kB));
}

void MakePlain(TextSurface& text, Range span) {
  text.SelStart = span.begin;
  text.SelLength = span.Length();
  text.SelCharOffset = 0;
  text.SelColor = kPlain;
  text.SelBold = false;
}

}  // namespace

void RemoveItem_Click(Form1& form) {
  if (form.TagList.ListIndex == -1) return;
  TakeSelectedTag(form);
  const TagSpan span = CutTagSpan(form.WorkState.CurrentTag.Get());
  form.RichTextBox1.SelectSpan(span.start, span.end);
  const Range removed = form.RichTextBox1.Selection();
  if (const auto other = FindTagOf(form.TagList, form.RichTextBox1.SelText())) {
    ShowOtherTag(form, *other);
  } else {
    MakePlain(form.RichTextBox1, removed);
    ResetTagEditor(form);
  }
  // The reader stays where the tag was removed, even if another one is now selected.
  form.RichTextBox1.LeaveView();
  const Button answer = form.MsgBox({.prompt = U"Do you want to save this change?",
                                     .title = U"Input required",
                                     .icon = MessageBox::Icon::kQuestion,
                                     .buttons = MessageBox::Buttons::kOkCancel});
  if (answer == Button::kCancel) return;
  CarryOn([&] { RewriteTagListFile(form); });
  form.RemoveItem.Enabled = false;
}

}  // namespace quill
