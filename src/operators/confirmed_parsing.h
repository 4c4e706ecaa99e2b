// Confirmed parsing: shows every occurrence of the selected operator and asks whether to mark it.
#pragma once

namespace quill {

class Form1;

// On Yes a hit takes the colour of its kind that marks made by hand have; on No it becomes plain,
// whatever it was before.
void Parse_3_Click(Form1& form);

}  // namespace quill
