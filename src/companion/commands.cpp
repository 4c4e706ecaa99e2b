#include "companion/command.h"

namespace quill::companion {

const std::vector<Command>& Commands() {
  static const std::vector<Command> kCommands = {
      {"text", "Print the text, as the positions of tags count it.", 0, RunText},
      {"export", "Write tags for other programs.",
       Command::kManyFiles | Command::kManyLists | Command::kTo, RunExport},
      {"summary", "Count characters, tags and what they say.",
       Command::kManyFiles | Command::kManyLists | Command::kCsv, RunSummary},
  };
  return kCommands;
}

}  // namespace quill::companion
