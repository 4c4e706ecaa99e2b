// The underline of the term in focus.
#pragma once

namespace quill {

class Form1;

// Takes the underline off all characters but the first, and puts the caret at 0.
void ClearUnderlines(Form1& form);

}  // namespace quill
