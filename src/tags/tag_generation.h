// Making a tag from what the tag editor shows: in TagList, in the text and in the tag list file.
//
// The same button makes a new tag or edits one, depending on whether an item of TagList is
// selected. A tag's number is a label, not a key.
#pragma once

namespace quill {

class Form1;

void Generate_Tag_Click(Form1& form);

// Sets NextTagID to one more than the number of the last line of TagList. If that line has no
// number, NextTagID keeps its value.
void AssignNextTagID(Form1& form);

// Formats the span of the tag and adds GeneratedTag to the list and the file.
void ApplyTagToText(Form1& form);

}  // namespace quill
