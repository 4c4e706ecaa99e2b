// Determining the tag that a relative term refers to.
#pragma once

namespace quill {

class Form1;

// Takes the tag at the caret for the reference of the term in the editor. Without a tag there, the
// user's own selection is the reference term, without positions.
void RefTag_Click(Form1& form);

// Copies term and span of the first tag at the caret to the reference fields, underlines that term
// and selects the term being edited, with the focus in the text. Without a tag there, the fields
// for the positions are blank and the selection stays.
void FindReferenceTag(Form1& form);

}  // namespace quill
