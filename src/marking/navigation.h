// The walk through the marked terms, in order to tag them.
//
// No list of marks exists: a term is whatever run of one exact colour the scan meets. TagEnd is the
// only memory of the walk, and both kinds share it; opening another text does not touch it.
#pragma once

namespace quill {

class Form1;

void FindAMarker_Click(Form1& form);
void FindBMarker_Click(Form1& form);
// Sends the walk back to the head of the text.
void Restart_PP_Click(Form1& form);

// Scans on for the next run of MarkerColor, selects and underlines it and fills the position boxes.
// The scan looks at every character but the one behind the last run, and at every one of a run but
// its second; a run that reaches the text's end gets a start and no end.
void FindNextMarker(Form1& form);

}  // namespace quill
