// An open file, and the system calls that the disk makes on it, with interruptions and short
// transfers handled.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <string_view>

namespace quill {

// Throws StatementFailed: "PATH could not be WHAT: REASON". The default reason is errno's.
[[noreturn]] void FailDisk(const std::string& path, const char* what);
[[noreturn]] void FailDisk(const std::string& path, const char* what, const char* reason);

class Descriptor {
 public:
  // Opening may fail: see IsOpen. errno then has the reason. Never waits for the other end of a
  // pipe. Later failures are reported under `name`, or under the path if that is empty.
  Descriptor(const std::string& path, int flags, mode_t mode = 0, const std::string& name = {});
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  // All of these throw StatementFailed on failure.
  struct stat Status() const;
  // As Status, but fails for anything but a regular file.
  struct stat OrdinaryStatus() const;
  // The whole file. Fails if it is longer than `most` bytes.
  std::string ReadAll(std::size_t most) const;
  void WriteAll(std::string_view bytes) const;
  // Returns once everything written is on the disk.
  void Flush() const;

 private:
  std::string name_;
  int number_;
};

// Whether both describe the same file.
bool IsSameFile(const struct stat& left, const struct stat& right);

// "a/" of "a/b", "" of "b".
std::string FolderPart(const std::string& path);

// Flushes the folder of a file, so that creating or renaming the file survives a crash.
void FlushFolderOf(const std::string& path);

}  // namespace quill
