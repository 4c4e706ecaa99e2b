// The panel that adds a term to the dictionaries: boxes for lemma and definition, a button for each
// kind and one for each dictionary.
//
// An empty box holds a single blank. The prompt that the panel restores is "Lemma?", the
// catalogue's is "Lemma ?". That is intended.
#pragma once

namespace quill {

class Form1;

// Any change of the lemma clears its kind.
void add_to_dictionary_Change(Form1& form);

// Entering a box clears it, whatever it held.
void add_to_dictionary_GotFocus(Form1& form);
void Text2_GotFocus(Form1& form);

// Sets the kind of the entry, which may differ from the kind of the mark in the text.
void A_type_add_Click(Form1& form);
void B_type_add_Click(Form1& form);

// Adds the entry to Parse_listbox and appends it to the dictionary. A lemma with a reserved
// character is refused with a message. If the file cannot be written, the entry stays in the list
// until the program ends, without a message.
void Add_to_global_dict_Click(Form1& form);
void Add_to_spec_dict_Click(Form1& form);

// Restores the prompts and disables the panel until the lemma changes.
void ResetDictionaryPanel(Form1& form);

}  // namespace quill
