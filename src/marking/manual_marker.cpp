#include "marking/manual_marker.h"

#include <string>

#include "text/marks.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// How the two kinds of marker differ.
struct Marker {
  CommandButton& define;
  CommandButton& defineOther;
  TextBox& box;
  CommandButton& set;
  CommandButton& reject;
  OperatorKind kind;
  bool rejectClosesFrame1;  // that only kind A does is intended
};

Marker MarkerA(Form1& form) {
  return {.define = form.DefAMarker,
          .defineOther = form.DefBMarker,
          .box = form.AMarkedString,
          .set = form.AMarkSet,
          .reject = form.AMarkReject,
          .kind = OperatorKind::kA,
          .rejectClosesFrame1 = true};
}

Marker MarkerB(Form1& form) {
  return {.define = form.DefBMarker,
          .defineOther = form.DefAMarker,
          .box = form.BMarkedString,
          .set = form.BMarkSet,
          .reject = form.BMarkReject,
          .kind = OperatorKind::kB,
          .rejectClosesFrame1 = false};
}

void Define(Form1& form, const Marker& marker) {
  form.WorkState.MarkerColor = MarkColour(marker.kind);
  form.RichTextBox1.SetFocus();
  if (form.RichTextBox1.SelLength > 0) {
    form.RichTextBox1.SelColor = MarkColour(marker.kind);
    form.WorkState.MarkedTerm = form.RichTextBox1.SelText();
    marker.box.SetFocus();
    marker.box.Text = U"";
    form.SendKeys(form.WorkState.MarkedTerm.Get());
    marker.box.FontBold = true;
  }
  marker.reject.Enabled = true;
  marker.set.Enabled = true;
  marker.defineOther.Enabled = false;
  marker.define.Enabled = false;
}

void Set(Form1& form, const Marker& marker) {
  marker.box.SetFocus();
  const std::u32string term = marker.box.Text;
  form.RichTextBox1.SetFocus();
  form.SendKeys(term);
  form.RichTextBox1.SelColor = MarkColour(marker.kind);
  form.RichTextBox1.SelBold = true;
  form.add_to_dictionary.Text = marker.box.Text;
  form.add_to_dictionary.BackColor = FoundColour(marker.kind);
  // After the write of the lemma, whose Change blanks the category.
  form.operator_category.Text = std::u32string(CategoryOf(marker.kind));
  form.Frame1.Enabled = true;
  form.Add_to_global_dict.Enabled = true;
  form.Add_to_spec_dict.Enabled = true;
  marker.box.SetFocus();
  // If the box held text, its Change disables the two dictionary buttons again.
  marker.box.Text = U"";
  form.RichTextBox1.SetFocus();
  marker.set.Enabled = false;
  marker.define.Enabled = true;
  marker.defineOther.Enabled = true;
}

void Reject(Form1& form, const Marker& marker) {
  marker.box.SetFocus();
  marker.box.Text = U"";
  form.RichTextBox1.SetFocus();
  form.RichTextBox1.SelColor = kPlain;
  form.RichTextBox1.SelBold = false;
  marker.set.Enabled = false;
  marker.define.Enabled = true;
  marker.defineOther.Enabled = true;
  if (marker.rejectClosesFrame1) form.Frame1.Enabled = false;
  form.Add_to_global_dict.Enabled = false;
  form.Add_to_spec_dict.Enabled = false;
  form.add_to_dictionary.BackColor = kNoLemmaKind;
  // If the box held anything else, its Change enables Frame1 again.
  form.add_to_dictionary.Text = U" ";
}

// While the user types a term, nothing can be added to a dictionary.
void TermChanged(Form1& form) {
  form.Add_to_global_dict.Enabled = false;
  form.Add_to_spec_dict.Enabled = false;
}

}  // namespace

void DefAMarker_Click(Form1& form) { Define(form, MarkerA(form)); }
void DefBMarker_Click(Form1& form) { Define(form, MarkerB(form)); }

void AMarkSet_Click(Form1& form) { Set(form, MarkerA(form)); }
void BMarkSet_Click(Form1& form) { Set(form, MarkerB(form)); }

void AMarkReject_Click(Form1& form) { Reject(form, MarkerA(form)); }
void BMarkReject_Click(Form1& form) { Reject(form, MarkerB(form)); }

void AMarkedString_Change(Form1& form) { TermChanged(form); }
void BMarkedString_Change(Form1& form) { TermChanged(form); }

}  // namespace quill
