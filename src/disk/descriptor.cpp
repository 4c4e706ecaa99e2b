#include "disk/descriptor.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "disk/statement_failed.h"
#include "text/large_pages.h"

namespace quill {
namespace {

// Repeats a system call while signals interrupt it.
template <class Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

int Open(const std::string& path, int flags, mode_t mode) {
  // The system would end the name at a NUL.
  if (path.find('\0') != std::string::npos) {
    errno = EINVAL;
    return -1;
  }
  return Uninterrupted(
      [&] { return open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, mode); });
}

}  // namespace

void FailDisk(const std::string& path, const char* what) {
  FailDisk(path, what, std::generic_category().message(errno).c_str());
}

void FailDisk(const std::string& path, const char* what, const char* reason) {
  throw StatementFailed(path + " could not be " + what + ": " + reason);
}

Descriptor::Descriptor(const std::string& path, int flags, mode_t mode, const std::string& name)
    : name_(name.empty() ? path : name), number_(Open(path, flags, mode)) {}

Descriptor::~Descriptor() {
  if (IsOpen()) close(number_);
}

struct stat Descriptor::Status() const {
  struct stat status = {};
  if (fstat(number_, &status) != 0) FailDisk(name_, "examined");
  return status;
}

struct stat Descriptor::OrdinaryStatus() const {
  const struct stat status = Status();
  if (!S_ISREG(status.st_mode)) FailDisk(name_, "opened", "it is no ordinary file");
  return status;
}

std::string Descriptor::ReadAll(std::size_t most) const {
  const auto expected = static_cast<std::size_t>(std::max<off_t>(Status().st_size, 0));
  if (expected > most) FailDisk(name_, "read", "it is too large");
  // One byte more than expected: the end of the file then shows without another step.
  std::string bytes;
  bytes.reserve(expected + 1);
  UseLargePages(bytes.data(), expected);
  bytes.resize(expected + 1);
  std::size_t got = 0;
  for (;;) {
    const ssize_t count =
        Uninterrupted([&] { return read(number_, bytes.data() + got, bytes.size() - got); });
    if (count < 0) FailDisk(name_, "read");
    if (count == 0) break;
    got += static_cast<std::size_t>(count);
    if (got > most) FailDisk(name_, "read", "it is too large");
    if (got == bytes.size()) bytes.resize(std::min(got * 2, most + 1));
  }
  bytes.resize(got);
  return bytes;
}

void Descriptor::WriteAll(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = Uninterrupted([&] { return write(number_, bytes.data(), bytes.size()); });
    if (count <= 0) FailDisk(name_, "written");
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void Descriptor::Flush() const {
  if (Uninterrupted([&] { return fsync(number_); }) != 0) FailDisk(name_, "flushed to the disk");
}

bool IsSameFile(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

std::string FolderPart(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

void FlushFolderOf(const std::string& path) {
  const std::string part = FolderPart(path);
  const Descriptor folder(part.empty() ? "." : part, O_RDONLY | O_DIRECTORY);
  // Nothing can be done for a folder that may be written but not read, or on a file system that
  // does not flush folders.
  if (!folder.IsOpen() && errno == EACCES) return;
  if (folder.IsOpen() && Uninterrupted([&] { return fsync(folder.Number()); }) == 0) return;
  if (errno != EINVAL && errno != EOPNOTSUPP && errno != EBADF) {
    FailDisk(path, "flushed to the disk");
  }
}

}  // namespace quill
