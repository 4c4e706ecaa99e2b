// What the user asked for: a command with its options.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quill::companion {

// Paths are bytes, as given.
struct Options {
  std::vector<std::string> files;
  std::vector<std::string> lists;  // tag lists instead of the one beside the text
  std::string output = "-";        // "-" for standard output
  bool force = false;
  bool csv = false;
  std::string to;     // csv, jsonld or xmi
  int width = 40;     // characters on either side, in a concordance
  std::string by;     // user, session or file
  std::string match;  // exact or overlap
};

}  // namespace quill::companion
