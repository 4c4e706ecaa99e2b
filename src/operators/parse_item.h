// What all searches for operators begin with: the item of the parsing list to look for.
#pragma once

namespace quill {

class Form1;

// Whether there is an item to look for. Each asks the user for what is missing.
bool HasItems(Form1& form);
bool HasSelectedItem(Form1& form);

// Sets ParseLine, ParseTerm and ParseCategory from the item at ParseIndex, and sets out at the
// text's beginning. An item without a backslash leaves the former term.
void TakeItem(Form1& form);

}  // namespace quill
