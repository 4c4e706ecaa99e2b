#include "files/saving.h"

#include "disk/text_family.h"
#include "tags/tag_list_file.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// Leaves FileName empty if the user cancels.
void ShowSaveDialog(Form1& form) {
  form.CommonDialog1.DialogTitle = U"Save your tagged *.tbf-file";
  form.CommonDialog1.FileName = WorkingCopyOf(form.WorkState.TextBaseFile);
  form.CommonDialog1.Filter = U"Tagged TextBaseFiles(*.tbf)|*.tbf";
  form.CommonDialog1.ShowSave();
}

// After a save the caption says v1.05, after opening v1.07 or v 1.07. That is intended.
void ShowSaved(Form1& form) {
  form.Caption = U"Quillorandix v1.05 ----- saved files " + form.WorkState.TextBaseFile.Get() +
                 U" + " + form.WorkState.TagListFile.Get();
  form.mnuProcess.Enabled = true;
}

void SaveOnLeaving(Form1& form) {
  CarryOn([&] { EnsureTagListFile(form); });
  CarryOn([&] { form.RichTextBox1.SaveFile(form.WorkState.TextBaseFile); });
  ShowSaved(form);
}

}  // namespace

void mnuFileSave_Click(Form1& form) {
  if (form.WorkState.TextBaseFile == U"") return;
  ShowSaveDialog(form);
  if (form.CommonDialog1.FileName.empty()) return;
  form.WorkState.TextBaseFile = form.CommonDialog1.FileName;
  try {
    EnsureTagListFile(form);
    form.RichTextBox1.SaveFile(form.WorkState.TextBaseFile);
  } catch (const StatementFailed&) {
    form.MsgBox(
        {.prompt = U"The text could not be saved to " + form.WorkState.TextBaseFile.Get() + U".",
         .title = U"Save failed",
         .icon = MessageBox::Icon::kCritical});
    return;
  }
  ShowSaved(form);
}

void mnuFileClose_Click(Form1& form) {
  if (form.WorkState.TextBaseFile != U"") {
    ShowSaveDialog(form);
    if (form.CommonDialog1.FileName.empty()) return;
    form.WorkState.TextBaseFile = form.CommonDialog1.FileName;
    SaveOnLeaving(form);
  }
  form.End();
}

}  // namespace quill
