#include "operators/confirmed_parsing.h"

#include "operators/parse_item.h"
#include "operators/term_search.h"
#include "text/case_folding.h"
#include "workbench/form1.h"

namespace quill {
namespace {

constexpr int kExclamationYesNo = 52;
constexpr int kYes = 6;

bool Confirmed(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  text.SelColor = RGB(192, 0, 192);
  text.SelUnderline = true;
  text.SelBold = true;
  text.Reveal();
  return form.MsgBox(U"Mark this word?", kExclamationYesNo, U"Confirm markup") == kYes;
}

void Mark(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  text.SelUnderline = false;
  if (form.WorkState.ParseCategory == U"A") {
    text.SelColor = RGB(0, 0, 255);
    text.SelBold = true;
  }
  if (form.WorkState.ParseCategory == U"B") {
    text.SelColor = RGB(255, 0, 0);
    text.SelBold = true;
  }
  // A tagged term is raised and not bold.
  if (text.SelCharOffset.Get().value_or(0) > 0) text.SelBold = false;
}

void MakePlain(TextSurface& text) {
  text.SelColor = RGB(0, 0, 0);
  text.SelBold = false;
  text.SelUnderline = false;
}

// ParsePos counts from 1, as TagStart does; the text's positions count from 0.
void ScanForTerm(Form1& form) {
  TextSurface& text = form.RichTextBox1;
  const std::u32string term = FoldCase(form.WorkState.ParseTerm.Text());
  const auto length = static_cast<Position>(term.size());
  const TermSearch search({term});
  for (Position parsePos = 1; parsePos < text.Length();) {
    const Position hit = search.Next(text.Text(), parsePos - 1);
    form.WorkState.TagStart = hit == TermSearch::kNone ? 0 : hit + 1;
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
