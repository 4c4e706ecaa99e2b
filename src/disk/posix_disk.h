// The disk of the machine.
//
// Files are replaced and copied through a temporary file in the same folder,
// `.NAME.quill-saving`, which is flushed and then renamed, so that a crash leaves either the old
// content or the new. A temporary file left by a crash is removed by the next save of the same
// file; one that another process is writing makes the save fail.
#pragma once

#include "disk/disk.h"

namespace quill {

class PosixDisk final : public Disk {
 public:
  // Regular files only, smaller than 4 GB.
  std::string Read(const std::string& path) override;
  bool IsOneFile(const std::string& path, const std::string& other) override;
  // Follows links, even to a target that does not exist yet. Keeps the permissions, and the owner
  // where allowed; refuses a write-protected file.
  void Replace(const std::string& path, std::string_view bytes) override;
  // The copy is in the folder of the file itself, even if the path is a link to it.
  void ReplaceKeepingOld(const std::string& path, std::string_view bytes) override;
  // The line is on the disk when the call returns. A failure undoes a partial write.
  void AppendLine(const std::string& path, std::string_view line) override;
  void CreateIfMissing(const std::string& path) override;
};

}  // namespace quill
