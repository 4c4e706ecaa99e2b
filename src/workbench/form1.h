// The one window: its controls, the record of working state, the keyboard focus, and whatever is
// deferred until the running handler ends.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "disk/disk.h"
#include "workbench/control.h"
#include "workbench/dialogs.h"
#include "workbench/taken_tags.h"
#include "workbench/text_surface.h"
#include "workbench/work_state.h"

namespace quill {

// Ends the program: thrown by Form1::End, caught only by whoever runs the program.
class ProgramEnd {};

class Form1 : public Control {
  // Declared before the controls, which register here as they are constructed.
  std::vector<Control*> controls_;

 public:
  // Both must outlive the form.
  Form1(Dialogs& dialogs, Disk& disk);

  Property<std::u32string> Caption;

  TextBox User_Dialogue{*this, "User_Dialogue"};
  Frame Infoframe{*this, "Infoframe"};
  CommandButton Close_Info{*this, "Close_Info"};
  TextBox Infotext{*this, "Infotext"};
  Frame IDFrame{*this, "IDFrame"};
  TextBox UserID1{*this, "UserID1"};
  CommandButton CloseIDFrame{*this, "CloseIDFrame"};
  TextBox SessionID{*this, "SessionID"};
  Label Label1{*this, "Label1"};
  TextSurface RichTextBox1{*this, "RichTextBox1"};
  CommonDialog CommonDialog1{*this, "CommonDialog1"};

  Frame PostFrame{*this, "PostFrame"};
  CommandButton TagChecker{*this, "TagChecker"};
  Frame RefFrame{*this, "RefFrame"};
  TextBox RefTagStop{*this, "RefTagStop"};
  TextBox RefTagStart{*this, "RefTagStart"};
  TextBox RefBox{*this, "RefBox"};
  CommandButton RefTag{*this, "RefTag"};
  CommandButton RemoveItem{*this, "RemoveItem"};
  CommandButton Restart_PP{*this, "Restart_PP"};
  TextBox marked_term{*this, "marked_term"};
  TextBox ValBox{*this, "ValBox"};
  CommandButton FindBMarker{*this, "FindBMarker"};
  CommandButton FindAMarker{*this, "FindAMarker"};
  ComboBox TypeCombo{*this, "TypeCombo"};
  ComboBox GranCombo{*this, "GranCombo"};
  ComboBox ModeCombo{*this, "ModeCombo"};
  ComboBox OperatorCombo{*this, "OperatorCombo"};
  ComboBox ClassCombo{*this, "ClassCombo"};
  TextBox EndPosition{*this, "EndPosition"};
  TextBox StartPosition{*this, "StartPosition"};
  TextBox ID{*this, "ID"};
  CommandButton Generate_Tag{*this, "Generate_Tag"};
  TextBox TaggedString{*this, "TaggedString"};
  ListBox TagList{*this, "TagList"};

  Frame PreFrame{*this, "PreFrame"};
  TextBox Text2{*this, "Text2"};
  TextBox add_to_dictionary{*this, "add_to_dictionary"};
  CommandButton Add_to_spec_dict{*this, "Add_to_spec_dict"};
  CommandButton AMarkReject{*this, "AMarkReject"};
  CommandButton AMarkSet{*this, "AMarkSet"};
  CommandButton BMarkReject{*this, "BMarkReject"};
  CommandButton BMarkSet{*this, "BMarkSet"};
  CommandButton DefAMarker{*this, "DefAMarker"};
  CommandButton DefBMarker{*this, "DefBMarker"};
  TextBox AMarkedString{*this, "AMarkedString"};
  TextBox BMarkedString{*this, "BMarkedString"};
  Frame Frame2{*this, "Frame2"};
  Frame Frame4{*this, "Frame4"};
  Frame Frame5{*this, "Frame5"};
  CommandButton Parse_3{*this, "Parse_3"};
  ListBox TempList{*this, "TempList"};
  CommandButton Deselect_Parse_Cull{*this, "Deselect_Parse_Cull"};
  CommandButton Undo_Parse_Cull{*this, "Undo_Parse_Cull"};
  ListBox Parse_listbox{*this, "Parse_listbox"};
  CommandButton Parse_cull{*this, "Parse_cull"};
  CommandButton Clear_list{*this, "Clear_list"};
  CommandButton Parse_2{*this, "Parse_2"};
  CommandButton Parse_1{*this, "Parse_1"};
  CommandButton Add_specific_parsing_list{*this, "Add_specific_parsing_list"};
  CommandButton Add_global_parsing_list{*this, "Add_global_parsing_list"};
  Frame Frame1{*this, "Frame1"};
  CommandButton B_type_add{*this, "B_type_add"};
  CommandButton A_type_add{*this, "A_type_add"};
  CommandButton Add_to_global_dict{*this, "Add_to_global_dict"};
  Frame Frame3{*this, "Frame3"};
  TextBox operator_category{*this, "operator_category"};

  MenuItem spaceMnu0{*this, "spaceMnu0"};
  MenuItem spaceMenu01{*this, "spaceMenu01"};
  MenuItem mnuFile{*this, "mnuFile"};
  MenuItem mnuFileOpen{*this, "mnuFileOpen"};
  MenuItem mnuFileSave{*this, "mnuFileSave"};
  MenuItem mnuFileClose{*this, "mnuFileClose"};
  MenuItem mnuSpace1{*this, "mnuSpace1"};
  MenuItem mnuSpace2{*this, "mnuSpace2"};
  MenuItem mnuProcess{*this, "mnuProcess"};
  MenuItem mnuPreProcess{*this, "mnuPreProcess"};
  MenuItem mnuPostProcess{*this, "mnuPostProcess"};
  MenuItem mnuSpace4{*this, "mnuSpace4"};
  MenuItem mnuSpace3{*this, "mnuSpace3"};
  MenuItem mnuSettings{*this, "mnuSettings"};
  MenuItem mnuDialogue_off{*this, "mnuDialogue_off"};
  MenuItem mnuDialogue_on{*this, "mnuDialogue_on"};
  MenuItem mnuUserID{*this, "mnuUserID"};
  MenuItem mnuSppace6{*this, "mnuSppace6"};
  MenuItem mnuInfo{*this, "mnuInfo"};
  MenuItem mnuVLK{*this, "mnuVLK"};

  // Qualified, because the members are named like their types.
  quill::WorkState WorkState;
  quill::TakenTags TakenTags;

  // In catalogue order, without the form itself.
  const std::vector<Control*>& Controls() const { return controls_; }
  // nullptr for an unknown name.
  Control* Find(std::string_view name) const;
  // The control that contains it; the form if it lies directly in the window.
  Control& ContainerOf(const Control& control) const;

  Dialogs& TheDialogs() const { return dialogs_; }
  Disk& TheDisk() const { return disk_; }

  // Returns the button pressed.
  Button MsgBox(const MessageBox& box);
  // Queues keystrokes for whichever control has the focus when the running handler has ended. Every
  // character arrives as itself.
  void SendKeys(std::u32string_view text) { keys_.append(text); }
  // Ends the program at once.
  [[noreturn]] void End() { throw ProgramEnd(); }

  // The control with the keyboard focus; nullptr until one has had it.
  Control* Focus() const { return focus_; }
  // Moves the focus without raising anything. Returns whether it moved.
  bool MoveFocus(Control& control);

  // Events deferred until the running handler ends, for the program to deliver.
  std::vector<Handler> TakeFocusEvents() { return std::exchange(focusEvents_, {}); }
  std::u32string TakeKeys() { return std::exchange(keys_, {}); }
  void QueueFocusEvent(Handler handler) { focusEvents_.push_back(handler); }

  // The watcher must outlive the form or be removed with nullptr.
  void SetWatcher(Watcher* watcher);
  Watcher& TheWatcher() const { return *watcher_; }

 private:
  friend class Control;
  void Enter(Control& control);

  Dialogs& dialogs_;
  Disk& disk_;
  Watcher nobody_;
  Watcher* watcher_ = &nobody_;
  Control* focus_ = nullptr;
  std::vector<Handler> focusEvents_;
  std::u32string keys_;
};

}  // namespace quill
