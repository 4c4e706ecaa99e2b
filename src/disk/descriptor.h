// An open file of the machine, and the system calls on it that the disk needs, with interruptions
// and short transfers dealt with.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <string>
#include <string_view>

namespace quill {

// Throws StatementFailed: "PATH could not be WHAT: REASON". The reason is that of errno, or one's
// own.
[[noreturn]] void FailDisk(const std::string& path, const char* what);
[[noreturn]] void FailDisk(const std::string& path, const char* what, const char* reason);

class Descriptor {
 public:
  // Open or not; where not, errno has the reason. Never waits for the other end of a pipe. Failures
  // name the path, or the name given.
  Descriptor(const std::string& path, int flags, mode_t mode = 0, const std::string& name = {});
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor();

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

  // All of these throw StatementFailed where they fail.
  struct stat Status() const;
  // Status of an ordinary file; anything else fails.
  struct stat OrdinaryStatus() const;
  // The whole file, which may not be longer than `most` bytes.
  std::string ReadAll(std::size_t most) const;
  void WriteAll(std::string_view bytes) const;
  // Returns when all that was written is on the disk.
  void Flush() const;

 private:
  std::string name_;
  int number_;
};

// Whether two names stand for one file.
bool IsSameFile(const struct stat& left, const struct stat& right);

// "a/" of "a/b", "" of "b".
std::string FolderPart(const std::string& path);

// Flushes the folder of a file, so that a file that was made or renamed there is there after a
// crash.
void FlushFolderOf(const std::string& path);

}  // namespace quill
