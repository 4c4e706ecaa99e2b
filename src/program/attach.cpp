#include "program/attach.h"

#include "files/opening.h"
#include "files/saving.h"
#include "info/modes.h"
#include "marking/manual_marker.h"
#include "marking/navigation.h"
#include "operators/automatic_parsing.h"
#include "operators/confirmed_parsing.h"
#include "operators/dictionary_panel.h"
#include "operators/parsing_list.h"
#include "tags/tag_at_caret.h"
#include "tags/tag_editor.h"
#include "tags/tag_generation.h"
#include "tags/tag_removal.h"
#include "tags/tag_selection.h"

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
  form.A_type_add.Click = A_type_add_Click;
  form.B_type_add.Click = B_type_add_Click;
  form.Add_to_global_dict.Click = Add_to_global_dict_Click;
  form.Add_to_spec_dict.Click = Add_to_spec_dict_Click;
}

void AttachParsing(Form1& form) {
  form.Add_global_parsing_list.Click = Add_global_parsing_list_Click;
  form.Add_specific_parsing_list.Click = Add_specific_parsing_list_Click;
  form.Parse_listbox.Click = Parse_listbox_Click;
  form.Parse_cull.Click = Parse_cull_Click;
  form.Undo_Parse_Cull.Click = Undo_Parse_Cull_Click;
  form.Deselect_Parse_Cull.Click = Deselect_Parse_Cull_Click;
  form.Clear_list.Click = Clear_list_Click;
  form.Parse_1.Click = Parse_1_Click;
  form.Parse_2.Click = Parse_2_Click;
  form.Parse_3.Click = Parse_3_Click;
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
  form.RefTag.Click = RefTag_Click;
  form.TagList.Click = TagList_Click;
  form.TagChecker.Click = TagChecker_Click;
  form.RemoveItem.Click = RemoveItem_Click;
}

}  // namespace

void AttachHandlers(Form1& form) {
  AttachMenus(form);
  AttachPanels(form);
  AttachPreFrame(form);
  AttachParsing(form);
  AttachPostFrame(form);
}

}  // namespace quill
