#include "companion/command.h"

namespace quill::companion {

const std::vector<Command>& Commands() {
  static const std::vector<Command> kCommands = {
      {"text", "Print the text, as the positions of tags count it.", 0, RunText},
      {"check", "Tell what does not fit between a text, its marks and its tags.",
       Command::kManyFiles | Command::kManyLists | Command::kCsv, RunCheck},
      {"repair", "Write a tag list whose positions fit the text again.",
       Command::kLists | Command::kNeedsOutput, RunRepair},
      {"export", "Write tags for other programs.",
       Command::kManyFiles | Command::kManyLists | Command::kTo, RunExport},
      {"concordance", "Show every tagged term in its line.",
       Command::kManyFiles | Command::kManyLists | Command::kWidth, RunConcordance},
      {"summary", "Count characters, tags and what they say.",
       Command::kManyFiles | Command::kManyLists | Command::kCsv, RunSummary},
      {"agree", "Tell how far the readers of one text agree.",
       Command::kManyFiles | Command::kManyLists | Command::kCsv | Command::kBy, RunAgree},
      {"picture", "Draw where the tags stand and what they refer to (SVG).",
       Command::kManyLists | Command::kNeedsOutput, RunPicture},
  };
  return kCommands;
}

}  // namespace quill::companion
