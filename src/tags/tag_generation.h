// Turning the present state of the tag editor into a tag, in TagList, text and tag list file.
//
// The same button makes a new tag and edits one: what decides is whether an item of TagList is
// selected at that moment. The tag's number is a label and no key.
#pragma once

namespace quill {

class Form1;

void Generate_Tag_Click(Form1& form);

// Sets NextTagID to one more than the number of the last line of TagList. Where that line gives no
// number, NextTagID keeps its value.
void AssignNextTagID(Form1& form);

// Formats the span of the tag, and adds GeneratedTag to list and file.
void ApplyTagToText(Form1& form);

}  // namespace quill
