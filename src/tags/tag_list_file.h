// The tag list file beside the text, and TagList.
//
// The two may differ: an edit appends to the file and leaves the old line in it, a removal may stay
// unsaved, and other programs may write to the file. So a rewrite from the list distinguishes lines
// that the user gave up from lines that the program does not know, and loses none of the latter.
#pragma once

namespace quill {

class Form1;

// Derives TagListFile from TextBaseFile, creates the file if it is missing, adds its lines to
// TagList and shows the introduction. Fails if the file cannot be created or read.
void LoadTagList(Form1& form);

// Derives TagListFile from TextBaseFile, creates the file if it is missing, and shows the guidance
// on the Process menu. Fails, without the guidance, if the file cannot be created.
void EnsureTagListFile(Form1& form);

// Takes the selected item out of TagList, to be edited or removed; its line becomes CurrentTag.
// Fails if no item is selected.
void TakeSelectedTag(Form1& form);

// Appends GeneratedTag as a line; creates a missing file.
void AppendGeneratedTag(Form1& form);

// Rewrites the file from TagList, in list order. If the old file has a line that is neither in
// TagList nor was taken out of it by the user, it is kept beside the new one. Fails, with the file
// unchanged, if it cannot be read, kept or written.
void RewriteTagListFile(Form1& form);

}  // namespace quill
