// The dialogs of the real window: the desktop's own file dialogs, and message boxes.
#pragma once

#include <QMessageBox>
#include <QStringList>

#include "workbench/form1.h"

namespace quill {

class WindowDialogs final : public Dialogs {
 public:
  // Before the first dialog: the window over which they open. Both must outlive the dialogs' use.
  void Attach(QWidget& window, const Form1& form);

  // The next open dialog is answered with that path and not shown: a text given at the start.
  void ChooseNext(const QString& path) { chosen_ = path; }

  std::optional<std::u32string> ShowOpen(const std::u32string& title,
                                         const std::u32string& filter) override;
  // Does not take the file that the text came from, unless that is a working copy. Asks before
  // another file is overwritten, unless it is the working copy on show.
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

// Where a question about a term stands, frame included, all in pixels of the screen: below or above
// the text, or else below or above the term, with some lines between them where there is room.
QPoint PlaceOfQuestion(QSize size, const QRect& text, const QRect& term, const QRect& screen);

// The filters of a file dialog as the toolkit wants them: "label (patterns)", where "*.*" stands
// for every file.
QStringList ToolkitFilters(const std::u32string& filter);

// The path, with the extension of the filter where it has none.
QString WithExtension(const QString& path, const QString& toolkitFilter);

}  // namespace quill
