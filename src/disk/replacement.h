// The temporary file through which a file is replaced, or a copy laid beside it.
#pragma once

#include <string>
#include <string_view>

#include "disk/descriptor.h"

namespace quill {

// The file that a path means in the end: links are followed, also to a target that does not exist.
std::string TargetOf(const std::string& path);

// The path of the temporary file for a target.
std::string TemporaryPath(const std::string& target);

// Whether what is written must survive a power cut, or only the end of the program.
enum class Flushing { kToDisk, kNone };

// Made beside its target and locked. Unless it was put in place, it is gone when this ends.
class Replacement {
 public:
  // With `restricted` nobody else may read it before its permissions are set.
  Replacement(const std::string& target, bool restricted, Flushing flushing = Flushing::kToDisk);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  // Writes and flushes, as told.
  void Fill(std::string_view bytes) const;
  void TakePermissionsOf(const struct stat& old) const;
  // Renames it over the target and flushes the folder, as told.
  void PutInPlace();
  // Gives it another name in the target's folder instead and flushes the folder. Returns whether
  // the name was free; what stands under a name that is taken stays.
  bool PutUnder(const std::string& freePath);

 private:
  std::string target_;
  std::string path_;
  Descriptor file_;
  Flushing flushing_;
  bool inPlace_ = false;
};

}  // namespace quill
