// Writing tag lines to the tag list file, beside the text.
#pragma once

namespace quill {

class Form1;

// Appends GeneratedTag as one line, making the file if it is missing.
void AppendGeneratedTag(Form1& form);

// Brings the file level with TagList: all items in list order, an empty file for an empty list.
void RewriteTagListFile(Form1& form);

}  // namespace quill
