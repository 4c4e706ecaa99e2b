#include "window/window_dialogs.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPushButton>
#include <utility>

#include "text/unicode.h"
#include "window/shown.h"

namespace quill {
namespace {

// Paths are bytes to the program, text to the toolkit.
QString PathToQt(const std::u32string& path) {
  return QFile::decodeName(QByteArray::fromStdString(EncodePath(path)));
}
std::u32string PathFromQt(const QString& path) {
  return DecodePath(QFile::encodeName(path).toStdString());
}

// A question that only its buttons answer.
class Question : public QMessageBox {
 public:
  explicit Question(QWidget* parent) : QMessageBox(parent) {
    setWindowFlag(Qt::WindowCloseButtonHint, false);
  }
  void reject() override {}

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
};

QMessageBox::Icon IconOf(int buttons) {
  switch (buttons & 0x70) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    default:
      return QMessageBox::NoIcon;
  }
}

int Run(QMessageBox& box, int buttons, const QString& prompt, const QString& title) {
  box.setIcon(IconOf(buttons));
  box.setTextFormat(Qt::PlainText);
  box.setText(prompt);
  box.setWindowTitle(title);
  return box.exec();
}

constexpr int kOk = 1;
constexpr int kCancel = 2;
constexpr int kYes = 6;
constexpr int kNo = 7;

}  // namespace

void WindowDialogs::Attach(QWidget& window, const Form1& form) {
  window_ = &window;
  form_ = &form;
}

QString WindowDialogs::StartFolder() const {
  const QString shown = PathToQt(form_->RichTextBox1.FilePath());
  return shown.isEmpty() ? QDir::currentPath() : QFileInfo(shown).absolutePath();
}

std::optional<std::u32string> WindowDialogs::ShowOpen(const std::u32string& title,
                                                      const std::u32string& filter) {
  if (chosen_) return PathFromQt(*std::exchange(chosen_, std::nullopt));
  QFileDialog dialog(window_, ToQt(title), StartFolder());
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(ToolkitFilters(filter));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return PathFromQt(dialog.selectedFiles().front());
}

std::optional<std::u32string> WindowDialogs::ShowSave(const std::u32string& title,
                                                      const std::u32string& filter,
                                                      const std::u32string& proposed) {
  QFileInfo name(QDir(StartFolder()), PathToQt(proposed));
  for (;;) {
    QFileDialog dialog(window_, ToQt(title), name.absolutePath());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(ToolkitFilters(filter));
    // The question comes below, when the extension is known.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(name.fileName());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
      return std::nullopt;
    }
    const QString path = WithExtension(dialog.selectedFiles().front(), dialog.selectedNameFilter());
    if (MayWrite(path)) return PathFromQt(path);
    name = QFileInfo(path);
  }
}

bool WindowDialogs::MayWrite(const QString& path) {
  const QFileInfo file(path);
  const QFileInfo shown(PathToQt(form_->RichTextBox1.FilePath()));
  if (!file.exists() || (!shown.filePath().isEmpty() && file == shown)) return true;
  QMessageBox box(window_);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  constexpr int kExclamation = 48;
  return Run(box, kExclamation,
             QStringLiteral("The file %1 exists already. Replace it?").arg(file.fileName()),
             QStringLiteral("Replace file")) == QMessageBox::Yes;
}

int WindowDialogs::MsgBox(const std::u32string& prompt, int buttons, const std::u32string& title) {
  switch (buttons & 0xF) {
    case 4: {
      Question box(window_);
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
      box.setDefaultButton(QMessageBox::Yes);
      return Run(box, buttons, ToQt(prompt), ToQt(title)) == QMessageBox::Yes ? kYes : kNo;
    }
    case 1: {
      QMessageBox box(window_);
      box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      box.setDefaultButton(QMessageBox::Ok);
      return Run(box, buttons, ToQt(prompt), ToQt(title)) == QMessageBox::Ok ? kOk : kCancel;
    }
    default: {
      QMessageBox box(window_);
      box.setStandardButtons(QMessageBox::Ok);
      Run(box, buttons, ToQt(prompt), ToQt(title));
      return kOk;
    }
  }
}

QStringList ToolkitFilters(const std::u32string& filter) {
  const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QStringList patterns = parts[i + 1].simplified().split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (QString& pattern : patterns) {
      pattern = pattern.trimmed();
      if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
    }
    // The toolkit takes the last brackets of the label for the patterns.
    QString label = parts[i];
    const qsizetype bracket = label.lastIndexOf(QLatin1Char('('));
    if (bracket > 0) label.truncate(bracket);
    filters += QStringLiteral("%1 (%2)").arg(label.trimmed(), patterns.join(QLatin1Char(' ')));
  }
  return filters;
}

QString WithExtension(const QString& path, const QString& toolkitFilter) {
  const qsizetype begin = toolkitFilter.lastIndexOf(QLatin1String("(*.")) + 2;
  if (begin < 2 || !QFileInfo(path).suffix().isEmpty()) return path;
  qsizetype end = begin;
  while (end < toolkitFilter.size() && toolkitFilter[end] != QLatin1Char(' ') &&
         toolkitFilter[end] != QLatin1Char(')')) {
    ++end;
  }
  const QString extension = toolkitFilter.mid(begin, end - begin);
  return path.endsWith(QLatin1Char('.')) ? path + extension.mid(1) : path + extension;
}

}  // namespace quill
