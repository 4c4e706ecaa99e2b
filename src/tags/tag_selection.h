// Showing a tag of the list in the tag editor and in the text.
#pragma once

namespace quill {

class Form1;

// Fills the editor from the selected line, underlines the term that the tag refers to and selects
// the tag's own span, with the focus in the text. The tag can then be edited or removed. Does
// nothing if no line is selected. Fields that cannot be cut are empty.
void TagList_Click(Form1& form);

}  // namespace quill
