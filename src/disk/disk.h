// The disk as the program sees it. PosixDisk is the real one; tests and benchmarks have others.
#pragma once

#include <string>
#include <string_view>

namespace quill {

// Paths are bytes. On failure every member throws StatementFailed, with a sentence that names the
// path.
class Disk {
 public:
  virtual ~Disk() = default;

  virtual std::string Read(const std::string& path) = 0;
  // Whether two paths lead to one file; false if either does not exist.
  virtual bool IsOneFile(const std::string& path, const std::string& other) = 0;
  // Atomic: after a failure at any point the old file is intact.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  // As Replace, but keeps the old content in the same folder, as PATH~ or, if that name is taken,
  // as the first free one of PATH~2, PATH~3 and so on. The file must exist. A failure leaves no
  // copy, unless the new content is already in place.
  virtual void ReplaceKeepingOld(const std::string& path, std::string_view bytes) = 0;
  // Appends a line and CR LF. Creates a missing file; first completes a last line that has no line
  // end.
  virtual void AppendLine(const std::string& path, std::string_view line) = 0;
  // Creates an empty file if none exists. An existing file is left alone; it may be write-protected
  // but must be readable.
  virtual void CreateIfMissing(const std::string& path) = 0;
};

}  // namespace quill
