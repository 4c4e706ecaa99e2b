#include "operators/confirmed_parsing.h"

#include "operators/parse_item.h"
#include "operators/term_search.h"
#include "text/case_folding.h"
#include "text/marks.h"
#include "workbench/form1.h"

namespace quill {
namespace {

bool Confirmed(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  text.SelColor = kAskedAbout;
  text.SelUnderline = true;
  text.SelBold = true;
  text.Reveal();
  return form.MsgBox({.prompt = U"Mark this word?",
                      .title = U"Confirm markup",
                      .icon = MessageBox::Icon::kExclamation,
                      .buttons = MessageBox::Buttons::kYesNo}) == Button::kYes;
}

void Mark(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  text.SelUnderline = false;
  if (const auto kind = KindOfCategory(form.WorkState.ParseCategory.Get())) {
    text.SelColor = MarkColour(*kind);
    text.SelBold = true;
  }
  // A tagged term is raised and not bold.
  if (text.SelCharOffset.Get().value_or(0) > 0) text.SelBold = false;
}

void MakePlain(TextSurface& text) {
  text.SelColor = kPlain;
  text.SelBold = false;
  text.SelUnderline = false;
}

// ParsePos and TagStart count from 1, positions of the text from 0. SelStart gets ParsePos all the
// same, so the caret ends up one character further on. That is intended.
void ScanForTerm(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  const std::u32string term = FoldCase(form.WorkState.ParseTerm.Get());
  const auto length = static_cast<Position>(term.size());
  const TermSearch search({term});
  for (Position parsePos = 1; parsePos < text.Length();) {
    const Position hit = search.Next(text.Text(), parsePos - 1);
    form.WorkState.TagStart = hit == TermSearch::kNone ? 0 : static_cast<double>(hit + 1);
    if (hit == TermSearch::kNone) return;
    text.SelStart = hit;
    text.SelLength = length;
    if (Confirmed(form)) {
      Mark(form);
    } else {
      MakePlain(text);
    }
    text.SelLength = 0;
    parsePos = hit + 1 + length;
    form.WorkState.ParsePos = parsePos;
    text.SelStart = parsePos;
  }
}

}  // namespace

void Parse_3_Click(Form1& form) {
  if (!HasItems(form) || !HasSelectedItem(form)) return;
  TakeItem(form);
  ScanForTerm(form);
}

}  // namespace quill
