// Stand-ins for the machine and its user: a disk in memory that fails on demand, and dialogs with
// prepared answers.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "disk/disk.h"
#include "disk/statement_failed.h"
#include "workbench/dialogs.h"

namespace quill::test {

enum class DiskCall { kRead, kReplace, kAppendLine, kCreateIfMissing };

class MemoryDisk final : public Disk {
 public:
  std::map<std::string, std::string> files;

  // From now on that call on that path fails.
  void Refuse(DiskCall call, const std::string& path) { refused_.emplace(call, path); }
  // Nothing fails any more.
  void Allow() { refused_.clear(); }
  bool Has(const std::string& path) const { return files.contains(path); }

  std::string Read(const std::string& path) override {
    Check(DiskCall::kRead, path);
    if (!Has(path)) throw StatementFailed("there is no " + path);
    return files[path];
  }
  bool IsOneFile(const std::string& path, const std::string& other) override {
    return path == other && Has(path);
  }
  void Replace(const std::string& path, std::string_view bytes) override {
    Check(DiskCall::kReplace, path);
    files[path] = bytes;
  }
  void ReplaceKeepingOld(const std::string& path, std::string_view bytes) override {
    const std::string old = Read(path);
    Check(DiskCall::kReplace, path);
    std::string kept = path + "~";
    for (int copies = 2; Has(kept); ++copies) kept = path + "~" + std::to_string(copies);
    files[kept] = old;
    files[path] = bytes;
  }
  void AppendLine(const std::string& path, std::string_view line) override {
    Check(DiskCall::kAppendLine, path);
    std::string& file = files[path];
    if (!file.empty() && file.back() != '\n') file += "\r\n";
    file.append(line).append("\r\n");
  }
  void CreateIfMissing(const std::string& path) override {
    Check(DiskCall::kCreateIfMissing, path);
    files.try_emplace(path);
  }

 private:
  void Check(DiskCall call, const std::string& path) const {
    if (refused_.contains({call, path})) throw StatementFailed("refused: " + path);
  }

  std::set<std::pair<DiskCall, std::string>> refused_;
};

// A dialog that was shown, with everything that it was given.
struct Shown {
  std::string dialog;  // "ShowOpen", "ShowSave" or "MsgBox"
  std::u32string title;
  std::u32string filter = {};    // of a file dialog
  std::u32string proposed = {};  // of a save dialog
  MessageBox box = {};
};

class ScriptedDialogs final : public Dialogs {
 public:
  struct Cancel {};
  struct Proposed {};
  // A path, a button of a message box, or what the user does with a file dialog.
  using Answer = std::variant<std::u32string, Button, Cancel, Proposed>;

  std::deque<Answer> answers;
  std::vector<Shown> shown;
  // If set, answers the message boxes.
  std::function<Button(const MessageBox& box)> ask;

  std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                         const std::u32string& filter) override {
    shown.push_back({.dialog = "ShowOpen", .title = title, .filter = filter});
    return Path(U"");
  }
  std::optional<std::u32string> ShowSave(const std::u32string& title, const std::u32string& filter,
                                         const std::u32string& proposed) override {
    shown.push_back({.dialog = "ShowSave", .title = title, .filter = filter, .proposed = proposed});
    return Path(proposed);
  }
  Button MsgBox(const MessageBox& box) override {
    shown.push_back({.dialog = "MsgBox", .title = box.title, .box = box});
    return ask ? ask(box) : std::get<Button>(Next());
  }

 private:
  Answer Next() {
    if (answers.empty()) throw std::logic_error("a dialog opened that no answer waits for");
    Answer answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }
  std::optional<std::u32string> Path(const std::u32string& proposed) {
    const Answer answer = Next();
    if (std::holds_alternative<Cancel>(answer)) return std::nullopt;
    if (std::holds_alternative<Proposed>(answer)) return proposed;
    return std::get<std::u32string>(answer);
  }
};

}  // namespace quill::test
