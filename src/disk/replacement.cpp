#include "disk/replacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>

namespace quill {
namespace {

// Whether the lock is ours. On a file system without locks it counts as ours.
bool Lock(const Descriptor& file) {
  return flock(file.Number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// The path for the temporary file, after removing what a crash left there. A file that another
// program is writing right now stays.
std::string ClearedPath(const std::string& target) {
  std::string path = TemporaryPath(target);
  const Descriptor stale(path, O_RDWR | O_NOFOLLOW);
  if (!stale.IsOpen() && errno == ENOENT) return path;
  const bool isLink = !stale.IsOpen() && errno == ELOOP;
  if (!stale.IsOpen() && !isLink) FailDisk(target, "written");
  if (!isLink && !Lock(stale)) FailDisk(target, "written", "another program is saving it");
  if (unlink(path.c_str()) != 0 && errno != ENOENT) FailDisk(target, "written");
  return path;
}

// Renames a file unless the new name is taken; if it is, errno is EEXIST.
int RenameToFree(const std::string& from, const std::string& to) {
#ifdef __linux__
  const int result = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
  if (result == 0 || (errno != EINVAL && errno != ENOSYS)) return result;
#endif
  // Not every file system can do this. On one that cannot, another program may take the name
  // between these two calls.
  struct stat there = {};
  if (lstat(to.c_str(), &there) == 0) {
    errno = EEXIST;
    return -1;
  }
  return errno == ENOENT ? rename(from.c_str(), to.c_str()) : -1;
}

// The content of a link; empty if the path is not a link.
std::string LinkText(const std::string& path) {
  std::array<char, PATH_MAX> text{};
  const ssize_t length = readlink(path.c_str(), text.data(), text.size());
  return length < 0 ? std::string() : std::string(text.data(), static_cast<std::size_t>(length));
}

}  // namespace

// The name is cut where it would be too long for a file system.
std::string TemporaryPath(const std::string& target) {
  constexpr std::string_view kEnding = ".quill-saving";
  const std::string folder = FolderPart(target);
  const std::string name = target.substr(folder.size());
  return folder + "." + name.substr(0, NAME_MAX - kEnding.size() - 1) + std::string(kEnding);
}

std::string TargetOf(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::string target = path;
  for (int links = 0; links < kMostLinks; ++links) {
    const std::string next = LinkText(target);
    if (next.empty()) return target;
    target.resize(next.front() == '/' ? 0 : FolderPart(target).size());
    target += next;
  }
  FailDisk(path, "written", "its links go round in a circle");
}

Replacement::Replacement(const std::string& target, bool restricted, Flushing flushing)
    : target_(target),
      path_(ClearedPath(target)),
      file_(path_, O_WRONLY | O_CREAT | O_EXCL, restricted ? 0600 : 0666, target),
      flushing_(flushing) {
  if (!file_.IsOpen()) FailDisk(target_, "written");
  // Between creating and locking, another program may have taken the file for a stale one.
  struct stat there = {};
  const bool ours =
      Lock(file_) && lstat(path_.c_str(), &there) == 0 && IsSameFile(there, file_.Status());
  if (!ours) FailDisk(target_, "written", "another program is saving it");
}

Replacement::~Replacement() {
  if (!inPlace_) unlink(path_.c_str());
}

void Replacement::Fill(std::string_view bytes) const {
  file_.WriteAll(bytes);
  if (flushing_ == Flushing::kToDisk) file_.Flush();
}

void Replacement::TakePermissionsOf(const struct stat& old) const {
  const struct stat fresh = file_.Status();
  const auto sameUser = static_cast<uid_t>(-1);
  // A user who may not give a file away may still give it to another of their groups.
  const bool owned = (old.st_uid == fresh.st_uid && old.st_gid == fresh.st_gid) ||
                     fchown(file_.Number(), old.st_uid, old.st_gid) == 0 ||
                     fchown(file_.Number(), sameUser, old.st_gid) == 0;
  // Without the set-ID bits: a program that runs as its owner must not run as another one.
  const mode_t kept = owned ? 07777 : 0777;
  if (((file_.Status().st_mode ^ old.st_mode) & kept) == 0) return;
  if (fchmod(file_.Number(), old.st_mode & kept) != 0) FailDisk(target_, "given its permissions");
}

bool Replacement::PutUnder(const std::string& freePath) {
  if (RenameToFree(path_, freePath) != 0) {
    if (errno != EEXIST) FailDisk(freePath, "made");
    return false;
  }
  path_ = freePath;
  FlushFolderOf(path_);
  inPlace_ = true;
  return true;
}

void Replacement::PutInPlace() {
  if (rename(path_.c_str(), target_.c_str()) != 0) FailDisk(target_, "replaced");
  inPlace_ = true;
  if (flushing_ == Flushing::kToDisk) FlushFolderOf(target_);
}

}  // namespace quill
