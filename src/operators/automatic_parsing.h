// Automatic parsing: marks every occurrence of listed operators in the text, without asking.
//
// A term is found wherever its characters occur, inside words too, whatever their case; hits of one
// term don't overlap. Kind A gets a lighter blue than marks made by hand, which the search for
// marks of kind A passes over. An entry of no kind leaves its hits as they are. A hit that is
// raised as a whole is tagged and doesn't become bold.
#pragma once

namespace quill {

class Form1;

// All items of the list but the last, which ends up selected. Where hits of two items overlap, the
// later item wins.
void Parse_1_Click(Form1& form);
// The selected item.
void Parse_2_Click(Form1& form);
// Selects the item behind the one that was selected last; at the end of the list does nothing.
void SelectNextParseItem(Form1& form);

}  // namespace quill
