// The parsing list: the operators that the searches look for.
//
// Parse_listbox holds entries of the dictionaries, verbatim and sorted; it outlives the text that
// it was filled for. Taking an item off leaves the dictionaries alone.
#pragma once

namespace quill {

class Form1;

// Add the lines of a dictionary to the list. Where it cannot be read the list stays, and the
// guidance says so.
void Add_global_parsing_list_Click(Form1& form);
void Add_specific_parsing_list_Click(Form1& form);

// The searches take the item that was selected last, even where nothing is selected any more.
void Parse_listbox_Click(Form1& form);

// Moves the selected item to TempList.
void Parse_cull_Click(Form1& form);
// Gives back the oldest removal since the last undo, and forgets the others.
void Undo_Parse_Cull_Click(Form1& form);
void Deselect_Parse_Cull_Click(Form1& form);
// Leaves what can be undone.
void Clear_list_Click(Form1& form);

}  // namespace quill
