// Where results go: standard output or files. Files are all checked before the first is written,
// and replaced, never written in place.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "companion/console.h"
#include "companion/options.h"

namespace quill::companion {

// Throws StatementFailed if one of the files may not be written: it is an input of the call, occurs
// twice among the outputs, exists already (except with --force), or has no folder that takes it.
void CheckOutputs(const std::vector<std::string>& paths, const Options& options);

// Writes a file that has been checked.
void WriteOutput(const std::string& path, std::string_view bytes);

// The single result of a command, written to standard output as it comes, or to a file when
// complete.
class Output {
 public:
  // Checks the file.
  Output(const Options& options, Console& console);
  void Write(std::string_view bytes);
  void Finish();

 private:
  const std::string& path_;
  Console& console_;
  std::string bytes_;
};

}  // namespace quill::companion
