#include "marking/navigation.h"

#include <algorithm>
#include <cmath>

#include "tags/tag_editor.h"
#include "text/marks.h"
#include "text/numbers.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// Advances ScanPos, in steps of one, to the first wanted character or to TextLen. The last
// character looked at stays selected; if none was, the selection stays. `find` returns the first
// wanted position at or after its argument, or the length of the text, so that a long walk asks the
// surface once and not once per character.
template <class Find>
bool ScanTo(Form1& form, Find find) {
  TextSurface& text = form.RichTextBox1;
  const double scan = form.WorkState.ScanPos;
  if (!(scan < static_cast<double>(form.WorkState.TextLen))) return false;
  const Position found = find(static_cast<Position>(std::max(scan, 0.0)));
  // TagEnd may be what a user typed into EndPosition: steps of one keep its fraction.
  const double fraction = std::isfinite(scan) ? scan - std::floor(scan) : 0;
  form.WorkState.ScanPos = static_cast<double>(found) + fraction;
  text.SelStart = std::min(found, text.Length() - 1);
  text.SelLength = 1;
  return found < text.Length();
}

bool FindStart(Form1& form, Colour colour) {
  TextSurface& text = form.RichTextBox1;
  if (!ScanTo(form, [&](Position from) { return text.FindColour(from, colour); })) return false;
  const Position start = text.SelStart + 1;
  form.StartPosition.Text = DecimalText(static_cast<double>(start));
  form.WorkState.TagStart = static_cast<double>(start);
  form.WorkState.ScanPos = static_cast<double>(start + 1);
  text.SelStart = start + 1;
  return true;
}

bool FindEnd(Form1& form, Colour colour) {
  TextSurface& text = form.RichTextBox1;
  if (!ScanTo(form, [&](Position from) { return text.FindOtherColour(from, colour); })) {
    return false;
  }
  const Position end = text.SelStart;
  form.EndPosition.Text = DecimalText(static_cast<double>(end));
  form.WorkState.TagEnd = static_cast<double>(end);
  return true;
}

void ShowRun(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  text.SelectSpan(form.WorkState.TagStart, form.WorkState.TagEnd);
  form.marked_term.Text = text.SelText();
  text.SelUnderline = true;
  text.SetFocus();
  text.Reveal();
}

void FindMarkerOf(Form1& form, OperatorKind kind) {
  form.WorkState.MarkerColor = MarkColour(kind);
  ResetTagEditor(form);
  FindNextMarker(form);
}

}  // namespace

void FindAMarker_Click(Form1& form) { FindMarkerOf(form, OperatorKind::kA); }

void FindBMarker_Click(Form1& form) { FindMarkerOf(form, OperatorKind::kB); }

void Restart_PP_Click(Form1& form) {
  ResetTagEditor(form);
  // Not 0: the walk starts over at the third character. That is intended.
  form.RichTextBox1.SelStart = 1;
  form.RichTextBox1.Reveal();
  form.WorkState.TagEnd = 1;
  ApplyTagEditorRules(form);
}

void FindNextMarker(Form1& form) {
  form.TaggedString.Text = U" ";
  form.RichTextBox1.ClearUnderlines();
  form.WorkState.ScanPos = form.WorkState.TagEnd + 1;
  form.WorkState.TextLen = form.RichTextBox1.Length();
  const Colour colour = form.WorkState.MarkerColor;
  if (FindStart(form, colour) && FindEnd(form, colour)) ShowRun(form);
  ApplyTagEditorRules(form);
}

}  // namespace quill
