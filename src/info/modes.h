// Switching between the two modes, and the box and panels that open over the text.
//
// The mode is just which of PreFrame and PostFrame is visible; both keep their contents.
#pragma once

namespace quill {

class Form1;

void mnuPreProcess_Click(Form1& form);
void mnuPostProcess_Click(Form1& form);

void mnuDialogue_off_Click(Form1& form);
void mnuDialogue_on_Click(Form1& form);

// Opening the Info menu already shows the panel, and its one item shows it again. That is intended.
void mnuInfo_Click(Form1& form);
void mnuVLK_Click(Form1& form);
void Close_Info_Click(Form1& form);

void mnuUserID_Click(Form1& form);
void CloseIDFrame_Click(Form1& form);

}  // namespace quill
