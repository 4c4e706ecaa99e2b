// The walk from one marked term to the next, for tagging them.
//
// There is no list of marks: a term is any run of one exact colour. TagEnd alone is the walk's
// position; both kinds share it, and it is kept when another text is opened.
#pragma once

namespace quill {

class Form1;

void FindAMarker_Click(Form1& form);
void FindBMarker_Click(Form1& form);
// Restarts the walk at the beginning of the text.
void Restart_PP_Click(Form1& form);

// Finds the next run of MarkerColor, selects and underlines it and fills the position boxes. The
// scan skips the character after the last run (the very first scan skips the first of the text) and
// the second character of a run, and a run that reaches the end of the text gets a start but no
// end. That is intended.
void FindNextMarker(Form1& form);

}  // namespace quill
