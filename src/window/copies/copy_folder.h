// The folder of the copies of unsaved texts.
//
// A copy is named after its text and the time, `the-ferry (2026-11-23 14.05).rtf`. Beside it lies
// its label, `.NAME.lock`, which holds the path of the text. Every program that writes a copy or
// has it open holds a lock on the label: copies without one are those that were left behind, and
// only they are ever taken away. Files without a label are the user's own and are not touched.
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

// A copy that is in use as long as this lives.
class UnsavedCopy {
 public:
  const std::string& Path() const { return path_; }
  // Of the text that it is a copy of; empty for a text that never had a file.
  const std::string& TextPath() const { return textPath_; }

  // Replaces the content. Throws StatementFailed with the old content whole.
  void Write(std::string_view bytes) const;
  // Takes it away, unless another program has it open. It is not in use any more.
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
  // The folder need not exist. Without a path nothing can be kept.
  explicit CopyFolder(std::string path) : path_(std::move(path)) {}

  // A new copy, empty yet, that no other program writes. Makes the folder, for the user alone.
  // Throws StatementFailed; a folder that is a link or belongs to somebody else is refused.
  UnsavedCopy Make(const std::string& textPath) const;
  // The copy that lies at a path; nothing where it is none of this folder.
  std::optional<UnsavedCopy> Use(const std::string& path) const;
  // Of the copies that are not in use, the newest of each text stays, of twenty texts at most, for
  // thirty days; an older one goes a day after the newer one was written. Never fails.
  void Prune() const;

 private:
  std::optional<UnsavedCopy> MakeNamed(const std::string& name, const std::string& textPath) const;
  std::vector<UnsavedCopy> LeftBehind() const;

  std::string path_;
};

// `quillorandix` in the user's folder for the state of programs; empty where there is none.
std::string UserCopyFolder();

}  // namespace quill
