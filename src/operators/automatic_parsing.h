// Automatic parsing: marks every occurrence of listed operators in the text, without asking.
//
// A term is found wherever its characters occur, even inside words, ignoring case; hits of one term
// do not overlap. Hits of kind A turn a lighter blue than marks made by hand, and the walk from
// mark to mark skips them. An entry without a kind leaves its hits as they are. A hit that is
// wholly raised is tagged and does not become bold.
#pragma once

namespace quill {

class Form1;

// Searches for all items of the list except the last, which is left selected. That is intended.
// Where hits of two items overlap, the later item wins.
void Parse_1_Click(Form1& form);
// Searches for the selected item.
void Parse_2_Click(Form1& form);
// Selects the item after the one selected last; does nothing at the end of the list.
void SelectNextParseItem(Form1& form);

}  // namespace quill
