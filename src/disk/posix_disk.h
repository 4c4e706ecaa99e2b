// The disk of the machine.
//
// A file is replaced, and a copy of it laid beside it, through a temporary file beside it,
// `.NAME.quill-saving`, flushed and renamed over it, so that a crash leaves the old content or the
// new one. A temporary file that a crash left behind is cleared by the next save of the same file;
// one that another running program is writing makes the save fail.
#pragma once

#include "disk/disk.h"

namespace quill {

class PosixDisk final : public Disk {
 public:
  // Ordinary files only, below 4 GB.
  std::string Read(const std::string& path) override;
  bool IsOneFile(const std::string& path, const std::string& other) override;
  // Follows links to their target, also one that does not exist yet. Permissions are kept, and the
  // owner where that is allowed; a file without the permission to write is refused.
  void Replace(const std::string& path, std::string_view bytes) override;
  // The copy lies in the folder of the file itself, also where the path is a link to it.
  void ReplaceKeepingOld(const std::string& path, std::string_view bytes) override;
  // The line is on the disk when the call returns. A failure takes back what was written of it.
  void AppendLine(const std::string& path, std::string_view line) override;
  void CreateIfMissing(const std::string& path) override;
};

}  // namespace quill
