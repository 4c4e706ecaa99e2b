// The tag at the caret: brought into the editor, or taken for the reference of the term there.
//
// It is the first line of TagList whose span holds the caret, from the gap before its first
// character to the gap behind its last; of a selection only the start counts. There is none unless
// post-processing is on show and the text is more than one blank.
#pragma once

namespace quill {

class Form1;

// Empties the tag editor, then selects the line of the tag, as a click on it would, and its span.
// Without a tag the selection in the text stays.
void TagChecker_Click(Form1& form);

// Copies term and span of the tag to the reference fields, underlines that term and selects the
// term being edited, with the focus in the text. Without a tag the user's own selection is the
// reference term, without positions, and the selection stays.
void RefTag_Click(Form1& form);

}  // namespace quill
