// The folder of the copies of unsaved texts.
//
// A copy is named after its text and the time, `the-ferry (2026-11-23 14.05).rtf`. Beside it is its
// label, `.NAME.lock`, which holds the path of the text. Every program that writes a copy or has it
// open holds a lock on the label: copies without a lock were left behind, and only those are ever
// removed. Files without a label are the user's and are not touched.
//
// Copies are replaced as a whole but not flushed: they survive the end of the program.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disk/descriptor.h"

namespace quill {

// A copy, in use while this object lives.
class UnsavedCopy {
 public:
  const std::string& Path() const { return path_; }
  // The path of the text that was copied; empty for a text that never had a file.
  const std::string& TextPath() const { return textPath_; }

  // Replaces the content. On failure throws StatementFailed, with the old content intact.
  void Write(std::string_view bytes) const;
  // Removes the copy, unless another program has it open. Afterwards it is no longer in use.
  void Remove();

 private:
  friend class CopyFolder;
  UnsavedCopy(std::string path, std::string textPath, std::unique_ptr<Descriptor> label)
      : path_(std::move(path)), textPath_(std::move(textPath)), label_(std::move(label)) {}

  void RemoveFiles() const;

  std::string path_;
  std::string textPath_;
  std::unique_ptr<Descriptor> label_;
};

class CopyFolder {
 public:
  // The folder need not exist. With an empty path nothing can be kept.
  explicit CopyFolder(std::string path) : path_(std::move(path)) {}

  // A new, empty copy that no other program writes. Creates the folder, for the user alone. Throws
  // StatementFailed; a folder that is a link or belongs to another user is refused.
  UnsavedCopy Make(const std::string& textPath) const;
  // The copy at a path; nothing if it is not a copy in this folder.
  std::optional<UnsavedCopy> Use(const std::string& path) const;
  // Of the copies not in use, keeps the newest of each text, for at most twenty texts and for
  // thirty days, and removes an older one a day after the newer one was written. Never fails.
  void Prune() const;

 private:
  std::optional<UnsavedCopy> MakeNamed(const std::string& name, const std::string& textPath) const;
  std::vector<UnsavedCopy> LeftBehind() const;

  std::string path_;
};

// `quillorandix` in the user's state folder; empty if there is none.
std::string UserCopyFolder();

}  // namespace quill
