// What the program asks of the machine it runs on: dialogs and disk. Each has a real form and one
// for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

// Modal dialogs. Calls return when the user has answered.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The path that the user chose, or nothing after a cancel. The filter is pairs of display text
  // and pattern, all separated by vertical bars.
  virtual std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                                 const std::u32string& filter) = 0;
  virtual std::optional<std::u32string> ShowSave(const std::u32string& title,
                                                 const std::u32string& filter,
                                                 const std::u32string& proposed) = 0;
  // The button pressed: 1 OK, 2 Cancel, 6 Yes, 7 No. Buttons: 0 OK; 16 critical icon, OK;
  // 33 question icon, OK and Cancel; 52 exclamation icon, Yes and No.
  virtual int MsgBox(const std::u32string& prompt, int buttons, const std::u32string& title) = 0;
};

// The one door to the disk. Paths are bytes. Every member throws StatementFailed with a sentence
// that names the path where it cannot do its work.
class Disk {
 public:
  virtual ~Disk() = default;

  virtual std::string Read(const std::string& path) = 0;
  // All of the new content or all of the old: a failure at any moment leaves the old file whole.
  virtual void Replace(const std::string& path, std::string_view bytes) = 0;
  // As Replace, and the old content, which must be there, stays beside the file: as PATH~ or, where
  // that name is taken, under the first free one of PATH~2, PATH~3 and so on. A failure leaves no
  // such copy, unless the new content is in place.
  virtual void ReplaceKeepingOld(const std::string& path, std::string_view bytes) = 0;
  // Adds one line and its line end, CR LF. A file that is missing is made; a last line that lacks
  // its line end gets it first.
  virtual void AppendLine(const std::string& path, std::string_view line) = 0;
  // Makes an empty file where there is none and leaves an existing one untouched, which may be
  // write-protected as long as it can be read.
  virtual void CreateIfMissing(const std::string& path) = 0;
};

}  // namespace quill
