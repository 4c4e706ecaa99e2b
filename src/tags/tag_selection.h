// Bringing a tag of the list back into the tag editor and on show in the text.
#pragma once

namespace quill {

class Form1;

// Fills the editor from the selected line, underlines the term that the tag refers to and selects
// the tag's own span, with the focus in the text. The tag is then ready to be edited or removed.
// Nothing without a selected line. Fields that cannot be cut are empty.
void TagList_Click(Form1& form);

}  // namespace quill
