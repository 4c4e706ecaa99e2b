// Telling whether a tag lies where the caret stands.
#pragma once

namespace quill {

class Form1;

// Empties the tag editor and brings up the tag at the caret, where there is one. Of a selection
// only the start counts.
void TagChecker_Click(Form1& form);

// Selects the first line of TagList whose span holds CaretPos, as a click on it would, and its
// span. Without one, the selection in the text stays.
void FindTagAtCaret(Form1& form);

}  // namespace quill
