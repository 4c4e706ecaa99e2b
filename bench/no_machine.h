// Dialogs and a disk for benchmarks: the dialogs are not answered and nothing is stored.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "disk/disk.h"
#include "disk/statement_failed.h"
#include "workbench/dialogs.h"

namespace quill::bench {

class NoDialogs : public Dialogs {
 public:
  std::optional<std::u32string> ShowOpen(const std::u32string& /*title*/,
                                         const std::u32string& /*filter*/) override {
    return std::nullopt;
  }
  std::optional<std::u32string> ShowSave(const std::u32string& /*title*/,
                                         const std::u32string& /*filter*/,
                                         const std::u32string& /*proposed*/) override {
    return std::nullopt;
  }
  Button MsgBox(const MessageBox& /*box*/) override { return Button::kOk; }
};

// Remembers what was last written, under any name, so that a rewrite finds what it replaces.
class NoDisk : public Disk {
 public:
  std::string Read(const std::string& path) override {
    if (!content_) throw StatementFailed(path + ": benchmarks have no files");
    return *content_;
  }
  bool IsOneFile(const std::string& /*path*/, const std::string& /*other*/) override {
    return false;
  }
  void Replace(const std::string& /*path*/, std::string_view bytes) override { content_ = bytes; }
  void ReplaceKeepingOld(const std::string& path, std::string_view bytes) override {
    Replace(path, bytes);
  }
  void AppendLine(const std::string& /*path*/, std::string_view /*line*/) override {}
  void CreateIfMissing(const std::string& /*path*/) override {
    if (!content_) content_.emplace();
  }

 private:
  std::optional<std::string> content_;
};

}  // namespace quill::bench
