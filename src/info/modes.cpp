#include "info/modes.h"

#include "tags/tag_editor.h"
#include "workbench/form1.h"
#include "workbench/guidance.h"

namespace quill {

void mnuPreProcess_Click(Form1& form) {
  form.PostFrame.Visible = false;
  form.PreFrame.Visible = true;
  form.User_Dialogue.Text = PreProcessModeText();
  form.RichTextBox1.SetFocus();
}

void mnuPostProcess_Click(Form1& form) {
  form.PreFrame.Visible = false;
  form.PostFrame.Visible = true;
  ApplyTagEditorRules(form);
  form.User_Dialogue.Text = PostProcessModeText();
  form.RichTextBox1.SetFocus();
}

void mnuDialogue_off_Click(Form1& form) {
  form.User_Dialogue.Visible = false;
  form.mnuDialogue_off.Enabled = false;
  form.mnuDialogue_on.Enabled = true;
}

void mnuDialogue_on_Click(Form1& form) {
  form.User_Dialogue.Visible = true;
  form.mnuDialogue_off.Enabled = true;
  form.mnuDialogue_on.Enabled = false;
}

void mnuInfo_Click(Form1& form) { form.Infoframe.Visible = true; }

void mnuVLK_Click(Form1& form) { form.Infoframe.Visible = true; }

void Close_Info_Click(Form1& form) { form.Infoframe.Visible = false; }

void mnuUserID_Click(Form1& form) { form.IDFrame.Visible = true; }

void CloseIDFrame_Click(Form1& form) { form.IDFrame.Visible = false; }

}  // namespace quill
