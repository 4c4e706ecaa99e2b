// Where a command writes: results to standard output, complaints to standard error. The exit code
// of the program follows from what was told here.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace quill::companion {

class Console {
 public:
  // Done; done, with findings; a wrong call, or something that could not be read or written.
  enum ExitCode { kDone = 0, kFindings = 1, kFailure = 2 };

  Console(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  // Throws StatementFailed where standard output takes no more.
  void Write(std::string_view bytes);
  // A remark that leaves the exit code alone.
  void Remark(const std::string& sentence);
  // What was found amiss in a line (from 1) of a file.
  void Complain(const std::string& file, std::size_t line, const std::string& sentence);
  // What could not be done.
  void Fail(const std::string& sentence);
  // Findings that stand in the results.
  void Found() { Raise(kFindings); }

  ExitCode Code() const { return code_; }

 private:
  void Raise(ExitCode code);

  std::ostream& out_;
  std::ostream& err_;
  ExitCode code_ = kDone;
};

}  // namespace quill::companion
