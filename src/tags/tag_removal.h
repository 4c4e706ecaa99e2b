// Taking the selected tag out of the list, and its marks out of the text.
#pragma once

namespace quill {

class Form1;

// The list and the text change at once. The question that follows decides about the tag list file
// alone: a Cancel brings nothing back.
void RemoveItem_Click(Form1& form);

}  // namespace quill
