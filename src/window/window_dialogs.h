// The dialogs of the real window: the desktop's own file dialogs, and message boxes.
#pragma once

#include <QMessageBox>
#include <QStringList>

#include "workbench/form1.h"

namespace quill {

class WindowDialogs final : public Dialogs {
 public:
  // Call this before the first dialog, with the window over which dialogs open. Both must outlive
  // the use of the dialogs.
  void Attach(QWidget& window, const Form1& form);

  // Answers the next open dialog with that path, without showing it: for a text given at startup.
  void ChooseNext(const QString& path) { chosen_ = path; }

  std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                         const std::u32string& filter) override;
  // Does not accept the file that the text came from, unless that is a working copy. Asks before
  // overwriting another file, unless it is the current working copy.
  std::optional<std::u32string> ShowSave(const std::u32string& title, const std::u32string& filter,
                                         const std::u32string& proposed) override;
  Button MsgBox(const MessageBox& box) override;

 private:
  QString StartFolder() const;
  bool IsInput(const QString& path) const;
  bool IsShownWorkingCopy(const QString& path) const;
  bool MayWrite(const QString& path);
  void RefuseInput();

  std::optional<QString> chosen_;
  QWidget* window_ = nullptr;
  const Form1* form_ = nullptr;
};

// The place of a question about a term, frame included, in screen pixels: below or above the text,
// or else below or above the term, with some lines between if there is room.
QPoint PlaceOfQuestion(QSize size, const QRect& text, const QRect& term, const QRect& screen);

// The filters of a file dialog in the toolkit's form, "label (patterns)", where "*.*" means every
// file.
QStringList ToolkitFilters(const std::u32string& filter);

// The path, with the filter's extension added if it has none.
QString WithExtension(const QString& path, const QString& toolkitFilter);

}  // namespace quill
