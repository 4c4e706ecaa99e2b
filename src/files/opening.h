// Opening a text: a working copy of earlier work, or a new text, of which a working copy is made at
// once so that the input file stays untouched.
#pragma once

namespace quill {

class Form1;

// Ends silently at the first step that fails; what was done up to there stands.
void mnuFileOpen_Click(Form1& form);

}  // namespace quill
