// A layer between a program and the C library, loaded with LD_PRELOAD, that strikes one system call
// of the program: the call fails, writes half of its bytes, or is the program's last.
//
// Calls on files of one folder count, from 1 on. The environment says what happens:
//
//   FAULT_FOLDER  the folder, as an absolute path; relative paths count too
//   FAULT_AT      the number of the call to strike; 0 strikes none
//   FAULT_KIND    "once": that call fails; "onwards": so do all later ones; "half": that call,
//                 where it writes, writes half of its bytes; "kill": the program dies before it
//   FAULT_ERRNO   why calls fail
//   FAULT_LOG     a file to which the names of all calls are written, a line each
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char* Setting(const char* name) {
  const char* const value = getenv(name);
  return value == nullptr ? "" : value;
}

struct Layer {
  const char* folder = Setting("FAULT_FOLDER");
  const char* kind = Setting("FAULT_KIND");
  long at = std::atol(Setting("FAULT_AT"));
  int reason = std::atoi(Setting("FAULT_ERRNO"));
  long log = syscall(SYS_open, Setting("FAULT_LOG"), O_WRONLY | O_CREAT | O_APPEND, 0600);
  long calls = 0;
  std::array<bool, 1024> files{};  // by descriptor: whether calls on it count

  bool Is(const char* name) const { return std::strcmp(kind, name) == 0; }
  bool IsOurs(const char* path) const {
    return path[0] != '/' || std::strncmp(path, folder, std::strlen(folder)) == 0;
  }
  bool IsOurs(int file) const {
    return file >= 0 && static_cast<std::size_t>(file) < files.size() &&
           files[static_cast<std::size_t>(file)];
  }
  void Mark(int file, bool ours) {
    if (file >= 0 && static_cast<std::size_t>(file) < files.size()) {
      files[static_cast<std::size_t>(file)] = ours;
    }
  }

  // Counts a call. Returns whether this is the one to strike.
  bool Reaches(const char* name) {
    ++calls;
    if (log >= 0) {
      syscall(SYS_write, log, name, std::strlen(name));
      syscall(SYS_write, log, "\n", 1);
    }
    if (calls == at && Is("kill")) syscall(SYS_kill, getpid(), SIGKILL);
    return calls == at;
  }
  // Counts a call. Returns whether it fails, with the reason in errno.
  bool Fails(const char* name) {
    const bool reached = Reaches(name);
    const bool fails = (reached && Is("once")) || (at != 0 && calls >= at && Is("onwards"));
    if (fails) errno = reason;
    return fails;
  }
};

Layer& TheLayer() {
  static Layer layer;
  return layer;
}

template <class Function>
Function* Real(const char* name, Function* /*sameType*/) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Passes a call on unless it counts and fails.
template <class Function, class... Arguments>
auto Pass(const char* name, Function* self, bool ours, Arguments... arguments) {
  using Result = decltype(self(arguments...));
  if (ours && TheLayer().Fails(name)) return static_cast<Result>(-1);
  return Real(name, self)(arguments...);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  const bool ours = TheLayer().IsOurs(path);
  const int file = Pass("open", &open, ours, path, flags, mode);
  TheLayer().Mark(file, ours);
  return file;
}

// The descriptor is closed even if the call fails.
int close(int file) {
  const bool fails = TheLayer().IsOurs(file) && TheLayer().Fails("close");
  TheLayer().Mark(file, false);
  const int result = Real("close", &close)(file);
  if (!fails) return result;
  errno = TheLayer().reason;
  return -1;
}

ssize_t write(int file, const void* bytes, size_t count) {
  Layer& layer = TheLayer();
  if (layer.IsOurs(file)) {
    if (layer.Fails("write")) return -1;
    if (layer.calls == layer.at && layer.Is("half")) count /= 2;
  }
  return Real("write", &write)(file, bytes, count);
}

ssize_t read(int file, void* bytes, size_t count) {
  return Pass("read", &read, TheLayer().IsOurs(file), file, bytes, count);
}
ssize_t pread(int file, void* bytes, size_t count, off_t at) {
  return Pass("pread", &pread, TheLayer().IsOurs(file), file, bytes, count, at);
}
// A flush that succeeds does nothing: a test that pulls no plug need not wait for the disk.
int fsync(int file) {
  if (TheLayer().IsOurs(file)) return TheLayer().Fails("fsync") ? -1 : 0;
  return Real("fsync", &fsync)(file);
}
int ftruncate(int file, off_t length) noexcept {
  return Pass("ftruncate", &ftruncate, TheLayer().IsOurs(file), file, length);
}
int fallocate(int file, int mode, off_t at, off_t length) {
  return Pass("fallocate", &fallocate, TheLayer().IsOurs(file), file, mode, at, length);
}
int fchmod(int file, mode_t mode) noexcept {
  return Pass("fchmod", &fchmod, TheLayer().IsOurs(file), file, mode);
}
int fchown(int file, uid_t user, gid_t group) noexcept {
  return Pass("fchown", &fchown, TheLayer().IsOurs(file), file, user, group);
}
int flock(int file, int operation) noexcept {
  return Pass("flock", &flock, TheLayer().IsOurs(file), file, operation);
}
int fstat(int file, struct stat* status) noexcept {
  return Pass("fstat", &fstat, TheLayer().IsOurs(file), file, status);
}
int lstat(const char* path, struct stat* status) noexcept {
  return Pass("lstat", &lstat, TheLayer().IsOurs(path), path, status);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  return Pass("faccessat", &faccessat, TheLayer().IsOurs(path), folder, path, mode, flags);
}
ssize_t readlink(const char* path, char* text, size_t size) noexcept {
  return Pass("readlink", &readlink, TheLayer().IsOurs(path), path, text, size);
}
int unlink(const char* path) noexcept {
  return Pass("unlink", &unlink, TheLayer().IsOurs(path), path);
}
int rename(const char* from, const char* to) noexcept {
  return Pass("rename", &rename, TheLayer().IsOurs(to), from, to);
}
int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  return Pass("renameat2", &renameat2, TheLayer().IsOurs(to), fromFolder, from, toFolder, to,
              flags);
}

}  // extern "C"
