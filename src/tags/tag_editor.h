// The rules of the tag editor, the row of controls in PostFrame that holds one tag while it is
// made.
//
// The editor has no state of its own: a control that shows its placeholder counts as not filled in,
// and the rules open the next step of the form by what the controls show.
#pragma once

namespace quill {

class Form1;

// Writes the placeholders back and deselects the tag. Rows of lists, RefFrame, RefTag and the
// identifiers stay. The rules run inside only where ValBox held another text; else the combo boxes
// stay enabled as they were until the caller runs them.
void ResetTagEditor(Form1& form);

// Enables and shows what the present texts allow. A second run with the same texts changes nothing.
void ApplyTagEditorRules(Form1& form);

void ClassCombo_Click(Form1& form);
void OperatorCombo_Click(Form1& form);
// Also swaps the rows of TypeCombo, which differ between absolute and relative terms.
void ModeCombo_Click(Form1& form);
void TypeCombo_Click(Form1& form);
void GranCombo_Click(Form1& form);
void ValBox_Change(Form1& form);

}  // namespace quill
