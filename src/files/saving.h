// Saving the text with its marks, and leaving the program.
//
// A save always writes, changed or not. The tag list is not part of it, being written tag by tag: a
// save under a new name creates an empty tag list file beside it. That is intended.
#pragma once

namespace quill {

class Form1;

// Tells the user if the save fails.
void mnuFileSave_Click(Form1& form);

// Saves and ends the program, even if the save fails; cancelling the dialog keeps it running.
void mnuFileClose_Click(Form1& form);

}  // namespace quill
