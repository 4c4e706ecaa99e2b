// Keeps a copy of the text on show in a folder of the user's as long as it has changes that are not
// saved: in a pause of the user's, soon after a change at the latest, and when the text leaves the
// window. A save takes the copy away.
//
// Only reads the model. In a pause the copy is written by a thread of its own, from a duplicate of
// the document. A folder that cannot be written is told once on standard error, and nothing else
// comes of it.
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
  // The text leaves with them.
  ~UnsavedCopies();
  UnsavedCopies(const UnsavedCopies&) = delete;
  UnsavedCopies& operator=(const UnsavedCopies&) = delete;

  // To be called when an action has ended or a dialog opens.
  void Look();
  // To be called before another text takes the place of this one.
  void TextLeaves();
  // Returns when the unsaved text has its copy. For the end of the program.
  void Take();

 private:
  const TextSurface& Text() const { return form_.RichTextBox1; }
  bool MustWrite() const;
  void FollowPath();
  // The path of the text on show; of a copy that was opened, that of its text.
  std::string TextPath() const;
  void Drop();
  void WriteInPause();
  // Whether no thread writes any more.
  bool HasWritten(std::chrono::milliseconds wait);
  void AwaitWriting();
  bool Write(const Document& document, const std::string& textPath);
  void Tell(const std::exception& failure);

  const Form1& form_;
  const CopyFolder folder_;
  const Pace pace_;
  QTimer timer_;
  QDeadlineTimer latest_;                // for the first change that the copy lacks
  std::optional<std::uint64_t> copied_;  // what the document had counted when it was copied
  std::u32string path_;                  // of the text on show
  std::optional<UnsavedCopy> opened_;    // the text on show, where that is a copy itself
  std::future<bool> writing_;
  // The thread's as long as it writes.
  std::optional<UnsavedCopy> copy_;
  bool told_ = false;
};

}  // namespace quill
