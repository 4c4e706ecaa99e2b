#include "tags/tag_list_file.h"

#include "files/text_lines.h"
#include "text/unicode.h"
#include "workbench/form1.h"

namespace quill {

void AppendGeneratedTag(Form1& form) {
  form.TheDisk().AppendLine(EncodePath(form.WorkState.TagListFile.Text()),
                            EncodeLine(form.WorkState.GeneratedTag.Text()));
}

void RewriteTagListFile(Form1& form) {
  std::string bytes;
  for (const std::u32string& line : form.TagList.Items()) bytes += EncodeLine(line) + "\r\n";
  form.TheDisk().Replace(EncodePath(form.WorkState.TagListFile.Text()), bytes);
}

}  // namespace quill
