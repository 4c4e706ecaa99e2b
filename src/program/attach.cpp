#include "program/attach.h"

#include "files/opening.h"
#include "files/saving.h"
#include "info/modes.h"
#include "marking/manual_marker.h"
#include "marking/navigation.h"
#include "operators/dictionary_panel.h"
#include "tags/tag_editor.h"
#include "tags/tag_generation.h"

namespace quill {
namespace {

void AttachMenus(Form1& form) {
  form.mnuFileOpen.Click = mnuFileOpen_Click;
  form.mnuFileSave.Click = mnuFileSave_Click;
  form.mnuFileClose.Click = mnuFileClose_Click;
  form.mnuPreProcess.Click = mnuPreProcess_Click;
  form.mnuPostProcess.Click = mnuPostProcess_Click;
  form.mnuDialogue_off.Click = mnuDialogue_off_Click;
  form.mnuDialogue_on.Click = mnuDialogue_on_Click;
  form.mnuUserID.Click = mnuUserID_Click;
  form.mnuInfo.Click = mnuInfo_Click;
  form.mnuVLK.Click = mnuVLK_Click;
}

void AttachPanels(Form1& form) {
  form.Close_Info.Click = Close_Info_Click;
  form.CloseIDFrame.Click = CloseIDFrame_Click;
}

void AttachPreFrame(Form1& form) {
  form.DefAMarker.Click = DefAMarker_Click;
  form.DefBMarker.Click = DefBMarker_Click;
  form.AMarkSet.Click = AMarkSet_Click;
  form.BMarkSet.Click = BMarkSet_Click;
  form.AMarkReject.Click = AMarkReject_Click;
  form.BMarkReject.Click = BMarkReject_Click;
  form.AMarkedString.Change = AMarkedString_Change;
  form.BMarkedString.Change = BMarkedString_Change;
  form.add_to_dictionary.Change = add_to_dictionary_Change;
  form.add_to_dictionary.GotFocus = add_to_dictionary_GotFocus;
  form.Text2.GotFocus = Text2_GotFocus;
}

void AttachPostFrame(Form1& form) {
  form.FindAMarker.Click = FindAMarker_Click;
  form.FindBMarker.Click = FindBMarker_Click;
  form.Restart_PP.Click = Restart_PP_Click;
  form.ClassCombo.Click = ClassCombo_Click;
  form.OperatorCombo.Click = OperatorCombo_Click;
  form.ModeCombo.Click = ModeCombo_Click;
  form.TypeCombo.Click = TypeCombo_Click;
  form.GranCombo.Click = GranCombo_Click;
  form.ValBox.Change = ValBox_Change;
  form.Generate_Tag.Click = Generate_Tag_Click;
}

}  // namespace

void AttachHandlers(Form1& form) {
  AttachMenus(form);
  AttachPanels(form);
  AttachPreFrame(form);
  AttachPostFrame(form);
}

}  // namespace quill
