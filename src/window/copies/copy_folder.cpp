#include "window/copies/copy_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <map>
#include <utility>

#include "disk/replacement.h"
#include "workbench/failure.h"

namespace quill {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostTexts = 20;
constexpr std::time_t kDay = 24L * 3600;
constexpr std::time_t kLongestAge = 30 * kDay;
// After a crash, opening the working copy, walking through it and closing it leaves a copy that is
// newer than the one with the lost marks.
constexpr std::time_t kGrace = kDay;
constexpr std::string_view kExtension = ".rtf";
constexpr std::string_view kLabelEnding = ".lock";

std::string LabelPath(const std::string& copy) {
  const std::string folder = FolderPart(copy);
  return folder + "." + copy.substr(folder.size()) + std::string(kLabelEnding);
}

// The name of the copy that a label belongs to; empty for other files.
std::string CopyOfLabel(const std::string& name) {
  const std::string ending = std::string(kExtension) + std::string(kLabelEnding);
  if (!name.starts_with('.') || !name.ends_with(ending)) return {};
  return name.substr(1, name.size() - 1 - kLabelEnding.size());
}

bool Lock(const Descriptor& label, int operation) {
  int result = flock(label.Number(), operation);
  while (result != 0 && errno == EINTR) result = flock(label.Number(), operation);
  return result == 0;
}

// Whether the label still exists: another program may have removed it before it was locked.
bool IsInPlace(const Descriptor& label, const std::string& path) {
  struct stat there = {};
  return lstat(path.c_str(), &there) == 0 && IsSameFile(there, label.Status());
}

// The name of a text's copy, without the part that distinguishes copies of the same minute. It is
// short enough for the file system to take the names of the label and the temporary file, too.
std::string CopyName(const std::string& textPath) {
  constexpr std::size_t kLongest = NAME_MAX - 80;
  std::string name = fs::path(textPath).stem().string();
  name.erase(0, name.find_first_not_of('.'));
  if (name.empty()) name = "untitled";
  if (name.size() > kLongest) {
    std::size_t end = kLongest;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0U) == 0x80) --end;
    name.resize(end);
  }
  const std::time_t now = std::time(nullptr);
  std::tm local = {};
  localtime_r(&now, &local);
  std::array<char, 32> time{};
  std::strftime(time.data(), time.size(), "%Y-%m-%d %H.%M", &local);
  return name + " (" + time.data();
}

void MakeFolder(const std::string& path) {
  if (mkdir(path.c_str(), 0700) == 0) return;
  if (errno == ENOENT && path.size() > 1) {
    MakeFolder(fs::path(path).parent_path());
    if (mkdir(path.c_str(), 0700) == 0) return;
  }
  if (errno != EEXIST) FailDisk(path, "made");
}

// Creates the folder if it is missing, and makes it private.
void MakePrivateFolder(const std::string& path) {
  if (path.empty()) throw StatementFailed("there is no folder for the state of programs");
  MakeFolder(path);
  const Descriptor folder(path, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  if (!folder.IsOpen()) FailDisk(path, "used");
  const struct stat status = folder.Status();
  if (status.st_uid != geteuid()) FailDisk(path, "used", "it is another user's");
  if ((status.st_mode & 0777) != 0700 && fchmod(folder.Number(), 0700) != 0) {
    FailDisk(path, "closed to others");
  }
}

// When the copy was last written; nothing if it does not exist.
std::optional<std::time_t> TimeOf(const UnsavedCopy& copy) {
  struct stat status = {};
  if (lstat(copy.Path().c_str(), &status) != 0) return std::nullopt;
  return status.st_mtime;
}

void RemoveIfEmpty(const std::string& path) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size == 0) {
    unlink(path.c_str());
  }
}

}  // namespace

void UnsavedCopy::Write(std::string_view bytes) const {
  Replacement replacement(path_, true, Flushing::kNone);
  replacement.Fill(bytes);
  replacement.PutInPlace();
}

void UnsavedCopy::Remove() {
  if (Lock(*label_, LOCK_EX | LOCK_NB)) RemoveFiles();
  label_.reset();
}

void UnsavedCopy::RemoveFiles() const {
  unlink(path_.c_str());
  unlink(TemporaryPath(path_).c_str());
  // These were created when the copy was opened as a text.
  const std::string base = path_.substr(0, path_.size() - kExtension.size());
  for (const char* const extension : {".tlf", ".spd"}) RemoveIfEmpty(base + extension);
  unlink(LabelPath(path_).c_str());
}

UnsavedCopy CopyFolder::Make(const std::string& textPath) const {
  constexpr int kMostCopies = 1000;
  MakePrivateFolder(path_);
  const std::string name = CopyName(textPath);
  for (int copy = 1; copy < kMostCopies; ++copy) {
    const std::string count = copy == 1 ? "" : ", " + std::to_string(copy);
    auto made = MakeNamed(name + count + ")" + std::string(kExtension), textPath);
    if (made) return std::move(*made);
  }
  FailDisk(path_, "used", "there are too many copies of this minute");
}

std::optional<UnsavedCopy> CopyFolder::MakeNamed(const std::string& name,
                                                 const std::string& textPath) const {
  const std::string path = path_ + "/" + name;
  const std::string labelPath = LabelPath(path);
  auto label = std::make_unique<Descriptor>(labelPath, O_RDWR | O_CREAT | O_EXCL, 0600);
  if (!label->IsOpen() && errno != EEXIST) FailDisk(labelPath, "made");
  if (!label->IsOpen()) return std::nullopt;
  Lock(*label, LOCK_SH);
  if (!IsInPlace(*label, labelPath)) return std::nullopt;
  struct stat there = {};
  if (lstat(path.c_str(), &there) == 0) {
    unlink(labelPath.c_str());
    return std::nullopt;
  }
  try {
    label->WriteAll(textPath);
  } catch (const StatementFailed&) {
    unlink(labelPath.c_str());
    throw;
  }
  return UnsavedCopy(path, textPath, std::move(label));
}

std::optional<UnsavedCopy> CopyFolder::Use(const std::string& path) const {
  std::error_code failure;
  if (!fs::equivalent(fs::path(path).parent_path(), path_, failure) || failure) return std::nullopt;
  const std::string labelPath = LabelPath(path);
  auto label = std::make_unique<Descriptor>(labelPath, O_RDWR | O_NOFOLLOW);
  if (!label->IsOpen()) return std::nullopt;
  Lock(*label, LOCK_SH);
  if (!IsInPlace(*label, labelPath)) return std::nullopt;
  std::string textPath = label->ReadAll(PATH_MAX);
  return UnsavedCopy(path, std::move(textPath), std::move(label));
}

std::vector<UnsavedCopy> CopyFolder::LeftBehind() const {
  std::vector<UnsavedCopy> copies;
  std::error_code failure;
  for (fs::directory_iterator entry(path_, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    const std::string name = CopyOfLabel(entry->path().filename().string());
    if (name.empty()) continue;
    auto label = std::make_unique<Descriptor>(entry->path().string(), O_RDWR | O_NOFOLLOW);
    if (!label->IsOpen() || !Lock(*label, LOCK_EX | LOCK_NB)) continue;
    if (!IsInPlace(*label, entry->path().string())) continue;
    std::string textPath = label->ReadAll(PATH_MAX);
    copies.push_back(UnsavedCopy(path_ + "/" + name, std::move(textPath), std::move(label)));
  }
  return copies;
}

void CopyFolder::Prune() const {
  CarryOn([&] {
    std::vector<UnsavedCopy> copies = LeftBehind();
    std::stable_sort(copies.begin(), copies.end(), [](const auto& left, const auto& right) {
      return TimeOf(left) > TimeOf(right);
    });
    const std::time_t now = std::time(nullptr);
    std::map<std::string, std::time_t> newer;
    for (UnsavedCopy& copy : copies) {
      const std::optional<std::time_t> time = TimeOf(copy);
      const auto found = newer.find(copy.TextPath());
      const bool among =
          found != newer.end() ? now - found->second < kGrace : newer.size() < kMostTexts;
      if (time && now - *time <= kLongestAge && among) {
        newer[copy.TextPath()] = *time;
      } else {
        copy.Remove();
      }
    }
  });
}

std::string UserCopyFolder() {
  const auto setTo = [](const char* variable) {
    const char* const value = std::getenv(variable);
    return std::string(value != nullptr ? value : "");
  };
  const std::string name = "/quillorandix";
  if (const std::string state = setTo("XDG_STATE_HOME"); state.starts_with('/')) {
    return state + name;
  }
  const std::string home = setTo("HOME");
  return home.starts_with('/') ? home + "/.local/state" + name : "";
}

}  // namespace quill
