// How every search for operators begins: with an item of the parsing list.
#pragma once

namespace quill {

class Form1;

// Whether there is an item to search for. If not, each tells the user what is missing.
bool HasItems(Form1& form);
bool HasSelectedItem(Form1& form);

// Sets ParseLine, ParseTerm and ParseCategory from the item at ParseIndex, and ParsePos to the
// beginning of the text. With an item without a backslash, ParseTerm keeps its value.
void TakeItem(Form1& form);

}  // namespace quill
