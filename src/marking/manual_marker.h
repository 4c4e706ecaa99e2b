// Marking by hand, in two steps: a define button colours the selection and types its text into the
// term box of its kind; then Set writes the box's term back over the selection as a mark, or Reject
// takes colour and bold off the selection.
//
// The enabled states of the buttons are the only memory of the dialogue: every step works on the
// selection of its own moment.
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
