// The parsing list: the operators that the searches look for.
//
// Parse_listbox holds entries of the dictionaries, verbatim and sorted, and keeps them when another
// text is opened. Removing an item does not change the dictionaries.
#pragma once

namespace quill {

class Form1;

// Add the lines of a dictionary to the list. If it cannot be read, the list stays as it is and the
// guidance says so.
void Add_global_parsing_list_Click(Form1& form);
void Add_specific_parsing_list_Click(Form1& form);

// The searches use the item selected last, even if it is no longer selected.
void Parse_listbox_Click(Form1& form);

// Moves the selected item to TempList.
void Parse_cull_Click(Form1& form);
// Restores the oldest removal since the last undo and forgets the others. That is intended.
void Undo_Parse_Cull_Click(Form1& form);
void Deselect_Parse_Cull_Click(Form1& form);
// What can be undone can still be undone afterwards.
void Clear_list_Click(Form1& form);

}  // namespace quill
