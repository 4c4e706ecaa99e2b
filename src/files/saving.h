// Saving the text with its marks, and leaving the program.
//
// Whether anything has changed is not known and not asked. The tag list is no part of a save: it
// reaches its file tag by tag.
#pragma once

namespace quill {

class Form1;

// A save that fails is told to the user.
void mnuFileSave_Click(Form1& form);

// Saves and ends the program, also where the save failed; a cancelled dialog keeps it running.
void mnuFileClose_Click(Form1& form);

}  // namespace quill
