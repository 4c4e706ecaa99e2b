#include "tags/underlines.h"

#include "workbench/form1.h"

namespace quill {

void ClearUnderlines(Form1& form) {
  form.RichTextBox1.SelStart = 1;
  form.RichTextBox1.SelLength = form.RichTextBox1.Length();
  form.RichTextBox1.SelUnderline = false;
  form.RichTextBox1.SelStart = 0;
}

}  // namespace quill
