// The tag at the caret: shown in the editor, or taken as the reference of the term being edited.
//
// It is the first line of TagList whose span holds the caret, from the gap before its first
// character to the gap after its last; only the start of a selection counts. There is none unless
// the post-processing mode is shown and the text is more than a single blank.
#pragma once

namespace quill {

class Form1;

// Resets the tag editor, then selects the tag's line, as a click on it would, and its span. If
// there is no tag, the selection in the text stays.
void TagChecker_Click(Form1& form);

// Copies term and span of the tag to the reference fields, underlines that term and selects the
// term being edited, with the focus in the text. If there is no tag, the user's selection becomes
// the reference term, without positions, and stays selected.
void RefTag_Click(Form1& form);

}  // namespace quill
