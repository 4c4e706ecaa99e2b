// Opening a text: a working copy from earlier, or a new text, which is copied to a working copy at
// once so that the input file is never changed.
#pragma once

namespace quill {

class Form1;

// Ends silently at the first step that fails; what was done before it remains.
void mnuFileOpen_Click(Form1& form);

}  // namespace quill
