// Removing the selected tag from the list, and its mark from the text.
#pragma once

namespace quill {

class Form1;

// List and text change at once. The question that follows is about the tag list file alone: Cancel
// restores nothing.
void RemoveItem_Click(Form1& form);

}  // namespace quill
