#include "files/opening.h"

#include "disk/text_family.h"
#include "tags/tag_editor.h"
#include "tags/tag_list_file.h"
#include "text/unicode.h"
#include "workbench/failure.h"
#include "workbench/form1.h"

namespace quill {
namespace {

void ShowOpenDialog(Form1& form) {
  form.CommonDialog1.DialogTitle = U"Load existing *.tbf-file or new *.rtf-file for tagging";
  form.CommonDialog1.Filter =
      U" tbf-files(*.tbf)| *.tbf| rtf-files (*.rtf)| *.rtf| All files (*.*)|*.*";
  form.CommonDialog1.ShowOpen();
}

// Creates the dictionary if it is missing.
void OpenSpecificDict(Form1& form) {
  form.WorkState.SpecificDictFile = DictionaryOf(form.WorkState.TextBaseFile);
  form.TheDisk().CreateIfMissing(EncodePath(form.WorkState.SpecificDictFile.Get()));
}

// Saves the new text as its working copy; the tag list and dictionary stay as they are.
void MakeWorkingCopy(Form1& form) {
  form.User_Dialogue.Text =
      U"Please save a *.tbf working copy before you start working with this file.";
  form.CommonDialog1.DialogTitle = U"Create and save a *.tbf working copy of the input file";
  form.CommonDialog1.FileName = WorkingCopyOf(form.WorkState.TextBaseFile);
  form.CommonDialog1.Filter = U"Tagged TextBaseFiles(*.tbf)|*.tbf";
  form.CommonDialog1.ShowSave();
  if (form.CommonDialog1.FileName.empty()) return;
  form.WorkState.TextBaseFile = form.CommonDialog1.FileName;
  EnsureTagListFile(form);
  form.RichTextBox1.SaveFile(form.WorkState.TextBaseFile);
  form.Caption = U"Quillorandix v1.07 ----- saved files " + form.WorkState.TextBaseFile.Get() +
                 U" + " + form.WorkState.TagListFile.Get();
  form.mnuProcess.Enabled = true;
}

void Open(Form1& form) {
  // Even if the guidance is hidden, so that only mnuDialogue_off enables it. That is intended.
  form.mnuDialogue_on.Enabled = false;
  form.Infoframe.Visible = false;
  ResetTagEditor(form);
  ApplyTagEditorRules(form);
  form.TagList.Clear();
  ShowOpenDialog(form);
  if (form.CommonDialog1.FileName.size() < 4) return;
  form.WorkState.TextBaseFile = form.CommonDialog1.FileName;
  form.PreFrame.Visible = true;
  form.RichTextBox1.LoadFile(form.WorkState.TextBaseFile);
  form.BMarkedString.Text = U"";
  form.AMarkedString.Text = U"";
  form.TaggedString.Text = U"";
  LoadTagList(form);
  OpenSpecificDict(form);
  form.Frame5.Enabled = true;
  form.Caption = U"Quillorandix v 1.07 processing " + form.WorkState.TextBaseFile.Get();
  if (IsWorkingCopy(form.WorkState.TextBaseFile)) {
    form.mnuProcess.Enabled = true;
    return;
  }
  MakeWorkingCopy(form);
}

}  // namespace

void mnuFileOpen_Click(Form1& form) {
  LeaveOnFailure([&] { Open(form); });
}

}  // namespace quill
