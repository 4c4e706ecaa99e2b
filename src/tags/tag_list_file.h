// The tag list file, beside the text: its lines into TagList and back.
//
// List and file part and meet again: an edit appends to the file and leaves the old line in it, a
// removal may be left unsaved, and other programs may write to the file. So a rewrite from the list
// tells lines that the user gave up from lines that nobody here knows, and loses none of these.
#pragma once

namespace quill {

class Form1;

// Lets TagListFile follow TextBaseFile, makes the file if it is missing, adds its lines to TagList
// and shows the introduction. Fails where the file can be neither made nor read.
void LoadTagList(Form1& form);

// Lets TagListFile follow TextBaseFile, makes the file if it is missing, and shows the guidance to
// the Process menu. Fails, without the guidance, where the file cannot be made.
void EnsureTagListFile(Form1& form);

// Takes the selected item out of TagList, to be edited or removed; its line becomes CurrentTag.
// Fails where no item is selected.
void TakeSelectedTag(Form1& form);

// Appends GeneratedTag as one line, making the file if it is missing.
void AppendGeneratedTag(Form1& form);

// Brings the file level with TagList: all items in list order, an empty file for an empty list. A
// file that holds a line which is neither in TagList nor taken out of it by the user is kept beside
// the new one. Fails, with the file as it was, where it cannot be read, kept or written.
void RewriteTagListFile(Form1& form);

}  // namespace quill
