// The panel through which a term enters the dictionaries: its lemma and definition boxes.
//
// A single blank is the value of an empty box here.
#pragma once

namespace quill {

class Form1;

// Any change of the lemma takes its kind away.
void add_to_dictionary_Change(Form1& form);

// Going into a box wipes it, whatever it held.
void add_to_dictionary_GotFocus(Form1& form);
void Text2_GotFocus(Form1& form);

}  // namespace quill
