// Removing the selected tag from the list, and its mark from the text.
#pragma once

namespace quill {

class Form1;

// List and text change at once. The question that follows concerns only the tag list file: Cancel
// restores nothing, and OK disables the button even if another tag is now selected. That is
// intended.
void RemoveItem_Click(Form1& form);

}  // namespace quill
