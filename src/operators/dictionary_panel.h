// The panel through which a term enters the dictionaries: its lemma and definition boxes, the
// buttons for its kind, and one button a dictionary.
//
// A single blank is the value of an empty box here. The panel writes "Lemma?" back where the
// catalogue's text is "Lemma ?".
#pragma once

namespace quill {

class Form1;

// Any change of the lemma takes its kind away.
void add_to_dictionary_Change(Form1& form);

// Going into a box wipes it, whatever it held.
void add_to_dictionary_GotFocus(Form1& form);
void Text2_GotFocus(Form1& form);

// The kind of the entry, which may differ from the kind of the mark in the text.
void A_type_add_Click(Form1& form);
void B_type_add_Click(Form1& form);

// The entry goes into Parse_listbox and behind the last line of the dictionary. A lemma with one of
// the reserved characters is refused with a message. Where the file cannot be written, the entry
// stays in the list for this run of the program, and nothing is said.
void Add_to_global_dict_Click(Form1& form);
void Add_to_spec_dict_Click(Form1& form);

// Shows the prompts and closes the panel until the lemma changes.
void ResetDictionaryPanel(Form1& form);

}  // namespace quill
