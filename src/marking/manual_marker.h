// Marking by hand, in two steps: a define button colours the selection and types its text into the
// term box of its kind; then Set writes the term back over the selection as a mark, or Reject
// clears colour and bold from it.
//
// Between the steps, only the buttons' enabled state is kept: each step works on whatever is
// selected at the time.
#pragma once

namespace quill {

class Form1;

void DefAMarker_Click(Form1& form);
void DefBMarker_Click(Form1& form);

void AMarkSet_Click(Form1& form);
void BMarkSet_Click(Form1& form);

void AMarkReject_Click(Form1& form);
void BMarkReject_Click(Form1& form);

void AMarkedString_Change(Form1& form);
void BMarkedString_Change(Form1& form);

}  // namespace quill
