// While the text has unsaved changes, keeps a copy of it in a folder of the user's. The copy is
// written when the user pauses, at the latest some time after a change, and when the text leaves
// the window. A save removes it.
//
// Only reads the model. In a pause, a separate thread writes the copy, from a duplicate of the
// document. A folder that cannot be written is reported once, on standard error, and has no other
// effect.
#pragma once

#include <QDeadlineTimer>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <exception>
#include <future>
#include <optional>
#include <string>

#include "window/copies/copy_folder.h"
#include "workbench/form1.h"

namespace quill {

class UnsavedCopies {
 public:
  struct Pace {
    std::chrono::milliseconds pause{10'000};   // without an action
    std::chrono::milliseconds latest{60'000};  // after a change
  };

  // The form must outlive them.
  UnsavedCopies(const Form1& form, std::string folder);
  UnsavedCopies(const Form1& form, std::string folder, Pace pace);
  // Counts as the text leaving the window.
  ~UnsavedCopies();
  UnsavedCopies(const UnsavedCopies&) = delete;
  UnsavedCopies& operator=(const UnsavedCopies&) = delete;

  // Call this when an action has ended or a dialog opens.
  void Look();
  // Call this before another text replaces this one.
  void TextLeaves();
  // Returns once the unsaved text has its copy. For the end of the program.
  void Take();

 private:
  const TextSurface& Text() const { return form_.RichTextBox1; }
  bool MustWrite() const;
  void FollowPath();
  // The path of the text; if that is an opened copy, the path of the text that it was copied from.
  std::string TextPath() const;
  void Drop();
  void WriteInPause();
  // Whether no thread is writing any longer.
  bool HasWritten(std::chrono::milliseconds wait);
  void AwaitWriting();
  bool Write(const Document& document, const std::string& textPath);
  void Tell(const std::exception& failure);

  const Form1& form_;
  const CopyFolder folder_;
  const Pace pace_;
  QTimer timer_;
  QDeadlineTimer latest_;                // for the first change missing from the copy
  std::optional<std::uint64_t> copied_;  // the document's count of changes when copied
  std::u32string path_;                  // of the text shown
  std::optional<UnsavedCopy> opened_;    // the text itself, if it is a copy
  std::future<bool> writing_;
  // Belongs to the thread while that writes.
  std::optional<UnsavedCopy> copy_;
  bool told_ = false;
};

}  // namespace quill
