// The temporary file through which a file is replaced or copied.
#pragma once

#include <string>
#include <string_view>

#include "disk/descriptor.h"

namespace quill {

// The file that a path leads to. Links are followed, even to a target that does not exist.
std::string TargetOf(const std::string& path);

// The path of the temporary file for a target.
std::string TemporaryPath(const std::string& target);

// Whether what is written must survive a power cut or only the end of the program.
enum class Flushing { kToDisk, kNone };

// Created in the target's folder and locked. Removed on destruction unless put in place.
class Replacement {
 public:
  // With `restricted`, no other user may read it until its permissions are set.
  Replacement(const std::string& target, bool restricted, Flushing flushing = Flushing::kToDisk);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  // Writes, and flushes if asked to.
  void Fill(std::string_view bytes) const;
  void TakePermissionsOf(const struct stat& old) const;
  // Renames it over the target, and flushes the folder if asked to.
  void PutInPlace();
  // Renames it to `freePath`, in the target's folder, instead, and flushes the folder. Returns
  // false, with nothing changed, if that name is taken.
  bool PutUnder(const std::string& freePath);

 private:
  std::string target_;
  std::string path_;
  Descriptor file_;
  Flushing flushing_;
  bool inPlace_ = false;
};

}  // namespace quill
