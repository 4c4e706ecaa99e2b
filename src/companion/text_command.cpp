#include "companion/command.h"
#include "companion/output.h"
#include "companion/tagged_text.h"
#include "text/unicode.h"

namespace quill::companion {

void RunText(const Options& options, Console& console) {
  Output output(options, console);
  output.Write(ToUtf8(ReadText(options.files.front()).characters));
  output.Finish();
}

}  // namespace quill::companion
