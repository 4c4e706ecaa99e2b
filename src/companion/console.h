// Where a command writes: results to standard output, complaints to standard error. The program's
// exit code follows from what was reported here.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>

namespace quill::companion {

class Console {
 public:
  // Done; done, with findings; an invalid call, or something could not be read or written.
  enum ExitCode { kDone = 0, kFindings = 1, kFailure = 2 };

  Console(std::ostream& out, std::ostream& err) : out_(out), err_(err) {}

  // Throws StatementFailed if standard output takes no more.
  void Write(std::string_view bytes);
  // A remark; it does not change the exit code.
  void Remark(const std::string& sentence);
  // A fault in a line (counted from 1) of a file.
  void Complain(const std::string& file, std::size_t line, const std::string& sentence);
  // What could not be done.
  void Fail(const std::string& sentence);
  // There are findings in the results.
  void Found() { Raise(kFindings); }

  ExitCode Code() const { return code_; }

 private:
  void Raise(ExitCode code);

  std::ostream& out_;
  std::ostream& err_;
  ExitCode code_ = kDone;
};

}  // namespace quill::companion
