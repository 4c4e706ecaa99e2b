#include "companion/console.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "disk/statement_failed.h"

namespace quill::companion {

void Console::Write(std::string_view bytes) {
  errno = 0;
  out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush();
  if (out_) return;
  const int reason = errno == 0 ? EIO : errno;
  throw StatementFailed("standard output could not be written: " +
                        std::generic_category().message(reason));
}

void Console::Remark(const std::string& sentence) { err_ << sentence << '\n'; }

void Console::Complain(const std::string& file, std::size_t line, const std::string& sentence) {
  err_ << file << ':' << line << ": " << sentence << '\n';
  Raise(kFindings);
}

void Console::Fail(const std::string& sentence) {
  err_ << "quilltags: " << sentence << '\n';
  Raise(kFailure);
}

void Console::Raise(ExitCode code) { code_ = std::max(code_, code); }

}  // namespace quill::companion
