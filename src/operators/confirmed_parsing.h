// Confirmed parsing: shows every occurrence of the selected operator and asks whether to mark it.
#pragma once

namespace quill {

class Form1;

// Yes marks the hit as by hand; No makes it plain, whatever it was before.
void Parse_3_Click(Form1& form);

}  // namespace quill
