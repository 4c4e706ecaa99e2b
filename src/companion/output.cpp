#include "companion/output.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <utility>

#include "companion/tagged_text.h"
#include "disk/descriptor.h"
#include "disk/posix_disk.h"
#include "disk/statement_failed.h"

namespace quill::companion {
namespace {

// Files, identified by what they are and, in case they do not exist, by where they would be.
class FileSet {
 public:
  bool Has(const std::string& path) const {
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0 && files_.contains({status.st_dev, status.st_ino})) {
      return true;
    }
    return places_.contains(PlaceOf(path));
  }

  void Add(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0) files_.emplace(status.st_dev, status.st_ino);
    places_.insert(PlaceOf(path));
  }

 private:
  static std::string PlaceOf(const std::string& path) {
    std::error_code ignored;
    const auto place = std::filesystem::weakly_canonical(path, ignored);
    return ignored ? path : place.string();
  }

  std::set<std::pair<dev_t, ino_t>> files_;
  std::set<std::string> places_;
};

FileSet InputsOf(const Options& options) {
  FileSet inputs;
  for (const std::string& file : options.files) {
    inputs.Add(file);
    inputs.Add(ListBeside(file));
  }
  for (const std::string& list : options.lists) inputs.Add(list);
  return inputs;
}

void CheckFolder(const std::string& path) {
  const std::string part = FolderPart(path);
  const std::string folder = part.empty() ? "." : part;
  std::error_code ignored;
  if (!std::filesystem::is_directory(folder, ignored)) {
    throw StatementFailed(path + " could not be written: there is no folder " + folder);
  }
  if (access(folder.c_str(), W_OK | X_OK) != 0) FailDisk(path, "written");
}

}  // namespace

void CheckOutputs(const std::vector<std::string>& paths, const Options& options) {
  const FileSet inputs = InputsOf(options);
  FileSet outputs;
  for (const std::string& path : paths) {
    if (inputs.Has(path)) throw StatementFailed(path + " is read in this call; it is not written");
    if (outputs.Has(path)) throw StatementFailed(path + " would be written twice");
    struct stat status = {};
    const bool there = lstat(path.c_str(), &status) == 0;
    if (there && !options.force) throw StatementFailed(path + " exists; --force replaces it");
    CheckFolder(path);
    outputs.Add(path);
  }
}

void WriteOutput(const std::string& path, std::string_view bytes) {
  PosixDisk().Replace(path, bytes);
}

Output::Output(const Options& options, Console& console)
    : path_(options.output), console_(console) {
  if (path_ != "-") CheckOutputs({path_}, options);
}

void Output::Write(std::string_view bytes) {
  if (path_ == "-") {
    console_.Write(bytes);
  } else {
    bytes_ += bytes;
  }
}

void Output::Finish() {
  if (path_ != "-") WriteOutput(path_, bytes_);
}

}  // namespace quill::companion
