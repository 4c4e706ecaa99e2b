// Saving the text with its marks, and leaving the program.
//
// Changes are not tracked: a save always writes. The tag list is not part of a save; it is written
// tag by tag.
#pragma once

namespace quill {

class Form1;

// Tells the user if the save fails.
void mnuFileSave_Click(Form1& form);

// Saves and ends the program, even if the save fails; cancelling the dialog keeps it running.
void mnuFileClose_Click(Form1& form);

}  // namespace quill
