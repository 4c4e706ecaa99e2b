// The rules of the tag editor, the row of controls in PostFrame that holds a tag while it is made.
//
// The editor keeps no state: a control that shows its placeholder is not filled in, and the rules
// enable the next control depending on what the others show.
#pragma once

namespace quill {

class Form1;

// Restores the placeholders and deselects the tag. Rows of lists, RefFrame, RefTag and the
// identifiers stay. The rules run only if this changes ValBox; otherwise the combo boxes stay
// enabled as they were until the caller runs the rules.
void ResetTagEditor(Form1& form);

// Enables and shows what the controls' texts allow. Idempotent.
void ApplyTagEditorRules(Form1& form);

void ClassCombo_Click(Form1& form);
void OperatorCombo_Click(Form1& form);
// Also swaps the rows of TypeCombo, which depend on the mode.
void ModeCombo_Click(Form1& form);
void TypeCombo_Click(Form1& form);
void GranCombo_Click(Form1& form);
void ValBox_Change(Form1& form);

}  // namespace quill
