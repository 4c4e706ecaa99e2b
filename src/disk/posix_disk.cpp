#include "disk/posix_disk.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <optional>

#include "disk/descriptor.h"
#include "disk/replacement.h"
#include "disk/statement_failed.h"
#include "disk/text_lines.h"

namespace quill {
namespace {

constexpr std::size_t kMostBytes = 0xFFFFFFFFU;
constexpr std::string_view kLineEnd = "\r\n";

// The status of the file at the path, if any.
std::optional<struct stat> StatusAt(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT) FailDisk(path, "written");
  return std::nullopt;
}

// The status of the file at the target, if any. Fails unless it is a regular file that may be
// written.
std::optional<struct stat> WritableAt(const std::string& target, const std::string& path) {
  const std::optional<struct stat> status = StatusAt(target);
  if (!status) return std::nullopt;
  if (!S_ISREG(status->st_mode)) FailDisk(path, "written", "it is no ordinary file");
  if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) FailDisk(path, "written");
  return status;
}

// Puts a copy of the content beside the target and returns its path.
std::string KeepBeside(const std::string& target, const struct stat& old, std::string_view bytes) {
  constexpr int kMostCopies = 10000;
  Replacement copy(target, true);
  copy.Fill(bytes);
  copy.TakePermissionsOf(old);
  for (int copies = 1; copies < kMostCopies; ++copies) {
    std::string name = target + (copies == 1 ? "~" : "~" + std::to_string(copies));
    if (copy.PutUnder(name)) return name;
  }
  FailDisk(target, "kept", "there are too many older copies of it");
}

// Creates an empty file unless one exists.
void Make(const std::string& path) {
  const Descriptor file(path, O_RDWR | O_CREAT, 0666);
  if (!file.IsOpen()) FailDisk(path, "made");
  FlushFolderOf(TargetOf(path));
}

// Whether the error means that a file may not be opened for writing; it may still be readable.
bool IsWriteProtection(int reason) {
  return reason == EACCES || reason == EPERM || reason == EROFS;
}

// Reserves room after the end of the file, so that a full disk shows before anything is written.
void ReserveRoom(const Descriptor& file, const std::string& path, off_t at, std::size_t length) {
#ifdef __linux__
  const auto room = static_cast<off_t>(length);
  while (fallocate(file.Number(), FALLOC_FL_KEEP_SIZE, at, room) != 0) {
    if (errno == EINTR) continue;
    if (errno == ENOSPC || errno == EDQUOT || errno == EFBIG) FailDisk(path, "written");
    return;  // not every file system can
  }
#endif
}

// Whether the last line of the file lacks its line end. A byte order mark alone is not a line.
bool LacksLineEnd(const Descriptor& file, const std::string& path, off_t size) {
  std::array<char, kByteOrderMark.size()> end{};
  const off_t length = std::min<off_t>(size, end.size());
  if (pread(file.Number(), end.data(), length, size - length) != length) FailDisk(path, "read");
  const std::string_view last(end.data(), static_cast<std::size_t>(length));
  const bool isMark = size == length && last == kByteOrderMark;
  return !last.empty() && !isMark && last.back() != '\n' && last.back() != '\r';
}

// Removes what a failed write left of a line, unless another program has written after it.
void TakeBack(const Descriptor& file, off_t oldSize, ssize_t written) {
  const off_t reached = oldSize + (written > 0 ? written : 0);
  if (file.Status().st_size != reached) return;
  while (ftruncate(file.Number(), oldSize) != 0 && errno == EINTR) {
  }
}

void AppendAtOnce(const Descriptor& file, const std::string& path, off_t size,
                  std::string_view bytes) {
  ReserveRoom(file, path, size, bytes.size());
  ssize_t written = -1;
  do {
    written = write(file.Number(), bytes.data(), bytes.size());
  } while (written < 0 && errno == EINTR);
  if (written == static_cast<ssize_t>(bytes.size())) return;
  const int reason = written < 0 ? errno : ENOSPC;
  TakeBack(file, size, written);
  errno = reason;
  FailDisk(path, "written");
}

}  // namespace

std::string PosixDisk::Read(const std::string& path) {
  const Descriptor file(path, O_RDONLY);
  if (!file.IsOpen()) FailDisk(path, "opened");
  file.OrdinaryStatus();
  return file.ReadAll(kMostBytes);
}

bool PosixDisk::IsOneFile(const std::string& path, const std::string& other) {
  struct stat one = {};
  struct stat two = {};
  return stat(path.c_str(), &one) == 0 && stat(other.c_str(), &two) == 0 && IsSameFile(one, two);
}

void PosixDisk::Replace(const std::string& path, std::string_view bytes) {
  if (path.find('\0') != std::string::npos) FailDisk(path, "written", "its name holds a NUL");
  const std::string target = TargetOf(path);
  const std::optional<struct stat> old = WritableAt(target, path);
  Replacement replacement(target, old.has_value());
  replacement.Fill(bytes);
  if (old) replacement.TakePermissionsOf(*old);
  replacement.PutInPlace();
}

void PosixDisk::ReplaceKeepingOld(const std::string& path, std::string_view bytes) {
  const std::string content = Read(path);
  const std::string target = TargetOf(path);
  const std::optional<struct stat> old = WritableAt(target, path);
  if (!old) FailDisk(path, "kept", "it is gone");
  const std::string kept = KeepBeside(target, *old, content);
  try {
    Replace(path, bytes);
  } catch (const StatementFailed&) {
    struct stat now = {};
    if (lstat(target.c_str(), &now) == 0 && IsSameFile(now, *old)) unlink(kept.c_str());
    throw;
  }
}

void PosixDisk::AppendLine(const std::string& path, std::string_view line) {
  CreateIfMissing(path);
  const Descriptor file(path, O_RDWR | O_APPEND);
  if (!file.IsOpen()) FailDisk(path, "opened");
  const off_t size = file.OrdinaryStatus().st_size;
  std::string bytes;
  if (size == 0) bytes += MarkInFrontOf(line);
  if (LacksLineEnd(file, path, size)) bytes += kLineEnd;
  bytes += line;
  bytes += kLineEnd;
  AppendAtOnce(file, path, size, bytes);
  file.Flush();
}

void PosixDisk::CreateIfMissing(const std::string& path) {
  const Descriptor file(path, O_RDWR);
  if (file.IsOpen()) {
    file.OrdinaryStatus();
  } else if (errno == ENOENT) {
    Make(path);
  } else if (IsWriteProtection(errno)) {
    const Descriptor there(path, O_RDONLY);
    if (!there.IsOpen()) FailDisk(path, "opened");
    there.OrdinaryStatus();
  } else {
    FailDisk(path, "opened");
  }
}

}  // namespace quill
