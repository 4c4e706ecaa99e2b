// The one door to the disk. It has a real form (PosixDisk) and others for tests.
#pragma once

#include <string>
#include <string_view>

namespace quill {

// Paths are bytes. Every member throws StatementFailed with a sentence that names the path where it
// cannot do its work.
class Disk {
 public:
  virtual ~Disk() = default;

  virtual std::string Read(const std::string& path) = 0;
  // Whether two paths lead to one file; false where there is none.
  virtual bool IsOneFile(const std::string& path, const std::string& other) = 0;
  // All of the new content or all of the old: a failure at any moment leaves the old file whole.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  // As Replace, and the old content, which must be there, stays beside the file: as PATH~ or, where
  // that name is taken, under the first free one of PATH~2, PATH~3 and so on. A failure leaves no
  // such copy, unless the new content is in place.
  virtual void ReplaceKeepingOld(const std::string& path, std::string_view bytes) = 0;
  // Adds one line and its line end, CR LF. A file that is missing is made; a last line that lacks
  // its line end gets it first.
  virtual void AppendLine(const std::string& path, std::string_view line) = 0;
  // Makes an empty file where there is none and leaves an existing one untouched, which may be
  // write-protected as long as it can be read.
  virtual void CreateIfMissing(const std::string& path) = 0;
};

}  // namespace quill
