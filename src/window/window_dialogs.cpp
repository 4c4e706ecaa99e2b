#include "window/window_dialogs.h"

#include <QCloseEvent>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>
#include <QWheelEvent>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "disk/text_family.h"
#include "text/unicode.h"
#include "window/application.h"
#include "window/shared/shown.h"
#include "window/shared/waiting_cursor.h"

namespace quill {
namespace {

// To the program paths are bytes, to the toolkit text.
QString PathToQt(const std::u32string& path) {
  return QFile::decodeName(QByteArray::fromStdString(EncodePath(path)));
}
std::u32string PathFromQt(const QString& path) {
  return DecodePath(QFile::encodeName(path).toStdString());
}

// True also if one is a link to the other or merely spelled differently.
bool IsOneFile(const QString& path, const QString& other) {
  const auto native = [](const QString& name) {
    return std::filesystem::path(QFile::encodeName(name).toStdString());
  };
  std::error_code missing;
  return std::filesystem::equivalent(native(path), native(other), missing) ||
         QDir::cleanPath(QFileInfo(path).absoluteFilePath()) ==
             QDir::cleanPath(QFileInfo(other).absoluteFilePath());
}

// Where the text and the selected term are on the screen.
struct Asked {
  QRect text;
  QRect term;
};

std::optional<Asked> AskedIn(const QWidget& window) {
  const auto* const view = window.findChild<QTextEdit*>(QStringLiteral("RichTextBox1"));
  if (view == nullptr || !view->isVisible()) return std::nullopt;
  const auto onScreen = [](const QWidget& widget, const QRect& rect) {
    return rect.translated(widget.mapToGlobal(QPoint(0, 0)));
  };
  QTextCursor end = view->textCursor();
  QTextCursor begin = end;
  begin.setPosition(end.selectionStart());
  end.setPosition(end.selectionEnd());
  return Asked{onScreen(*view, view->rect()),
               onScreen(*view->viewport(), view->cursorRect(begin).united(view->cursorRect(end)))};
}

// A question about the selected term, answered only by its buttons. It leaves the text free if the
// screen has room beside it, else at least the term and the lines around it. The wheel still
// scrolls the text. The toolkit allows that to no window behind a modal one, so this box is not
// modal but refuses all other input to the window.
class Question : public QMessageBox {
 public:
  explicit Question(QWidget* parent) : QMessageBox(parent) {
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setModal(false);
  }
  void reject() override {}

  int exec() override {
    Application::Instance().RefuseInput(
        [this](const QWidget& widget, const QEvent& event) { return Refuses(widget, event); });
    show();
    QEventLoop loop;
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::DialogExec);
    Application::Instance().RefuseInput(nullptr);
    return standardButton(clickedButton());
  }

 protected:
  void showEvent(QShowEvent* event) override {
    QMessageBox::showEvent(event);
    const std::optional<Asked> asked = AskedIn(*parentWidget());
    if (!asked) return;
    // The window manager adds the frame later, and some add it around the given place.
    const QWidget& window = *parentWidget()->window();
    const QPoint frame = window.geometry().topLeft() - window.frameGeometry().topLeft();
    const QSize framed = size() + QSize(2 * frame.x(), frame.x() + frame.y());
    const QRect screen = window.screen()->availableGeometry();
    move(PlaceOfQuestion(framed, asked->text, asked->term, screen) + frame);
  }
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }

 private:
  bool Refuses(const QWidget& widget, const QEvent& event) {
    if (widget.window() != parentWidget()->window()) return false;
    const bool turns = event.type() == QEvent::Wheel;
    if (turns && static_cast<const QWheelEvent&>(event).modifiers() == Qt::NoModifier) {
      const auto* const text = parentWidget()->findChild<QWidget*>(QStringLiteral("RichTextBox1"));
      return text == nullptr || !text->isAncestorOf(&widget);
    }
    if (!turns) activateWindow();
    return true;
  }
};

QMessageBox::Icon IconOf(MessageBox::Icon icon) {
  switch (icon) {
    case MessageBox::Icon::kCritical:
      return QMessageBox::Critical;
    case MessageBox::Icon::kQuestion:
      return QMessageBox::Question;
    case MessageBox::Icon::kExclamation:
      return QMessageBox::Warning;
    default:
      return QMessageBox::NoIcon;
  }
}

// Title bars have their own font and cut a title that does not fit beside their buttons.
int WidthOfTitle(const QString& title) {
  constexpr int kIconAndButtons = 140;
  QFont font = QFontDatabase::systemFont(QFontDatabase::TitleFont);
  font.setBold(true);
  return QFontMetrics(font).horizontalAdvance(title) + kIconAndButtons;
}

int Run(QMessageBox& box, QMessageBox::Icon icon, const QString& prompt, const QString& title) {
  box.setIcon(icon);
  box.setTextFormat(Qt::PlainText);
  box.setText(prompt);
  box.setWindowTitle(title);
  // A message box takes its size only from its contents.
  auto& grid = dynamic_cast<QGridLayout&>(*box.layout());
  grid.addItem(new QSpacerItem(WidthOfTitle(title), 0), grid.rowCount(), 0, 1, grid.columnCount());
  return box.exec();
}

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
  const NoWaitingCursor arrow;
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
  const NoWaitingCursor arrow;
  // Without a name, the path would be that of the folder, and its folder the one above.
  QString folder = StartFolder();
  QString name;
  if (!proposed.empty()) {
    const QFileInfo file(QDir(folder), PathToQt(proposed));
    folder = file.absolutePath();
    name = file.fileName();
  }
  for (;;) {
    QFileDialog dialog(window_, ToQt(title), folder);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setNameFilters(ToolkitFilters(filter));
    // The program asks below, when the extension is known.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
      return std::nullopt;
    }
    const QString path = WithExtension(dialog.selectedFiles().front(), dialog.selectedNameFilter());
    if (IsInput(path)) {
      RefuseInput();
      continue;
    }
    if (MayWrite(path)) return PathFromQt(path);
    folder = QFileInfo(path).absolutePath();
    name = QFileInfo(path).fileName();
  }
}

bool WindowDialogs::IsInput(const QString& path) const {
  const std::u32string& source = form_->RichTextBox1.SourcePath();
  return !source.empty() && !IsWorkingCopy(source) && IsOneFile(path, PathToQt(source));
}

bool WindowDialogs::IsShownWorkingCopy(const QString& path) const {
  const std::u32string& shown = form_->RichTextBox1.FilePath();
  return !shown.empty() && IsWorkingCopy(PathFromQt(path)) && IsOneFile(path, PathToQt(shown));
}

void WindowDialogs::RefuseInput() {
  QMessageBox box(window_);
  Run(box, QMessageBox::Warning,
      QStringLiteral(
          "The text came from %1. That file is never written: please choose another name "
          "for the working copy.")
          .arg(QFileInfo(PathToQt(form_->RichTextBox1.SourcePath())).fileName()),
      QStringLiteral("Input file"));
}

bool WindowDialogs::MayWrite(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists() || IsShownWorkingCopy(path)) return true;
  QMessageBox box(window_);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::No);
  return Run(box, QMessageBox::Warning,
             QStringLiteral("The file %1 exists already. Replace it?").arg(file.fileName()),
             QStringLiteral("Replace file")) == QMessageBox::Yes;
}

Button WindowDialogs::MsgBox(const MessageBox& box) {
  const NoWaitingCursor arrow;
  const auto run = [&](QMessageBox& shown, QMessageBox::StandardButtons buttons) {
    shown.setStandardButtons(buttons);
    shown.setDefaultButton((buttons & QMessageBox::Yes) != 0 ? QMessageBox::Yes : QMessageBox::Ok);
    return Run(shown, IconOf(box.icon), ToQt(box.prompt), ToQt(box.title));
  };
  if (box.buttons == MessageBox::Buttons::kYesNo) {
    Question shown(window_);
    const int pressed = run(shown, QMessageBox::Yes | QMessageBox::No);
    return pressed == QMessageBox::Yes ? Button::kYes : Button::kNo;
  }
  QMessageBox shown(window_);
  if (box.buttons == MessageBox::Buttons::kOk) {
    run(shown, QMessageBox::Ok);
    return Button::kOk;
  }
  const int pressed = run(shown, QMessageBox::Ok | QMessageBox::Cancel);
  return pressed == QMessageBox::Ok ? Button::kOk : Button::kCancel;
}

QPoint PlaceOfQuestion(QSize size, const QRect& text, const QRect& term, const QRect& screen) {
  // The same place for every term if possible: the mouse may rest on a button.
  const int middle = text.center().x() - size.width() / 2;
  const int left = std::max(std::min(middle, screen.right() + 1 - size.width()), screen.left());
  const int lines = 3 * term.height();
  const int tops[] = {text.bottom() + 1,         text.top() - size.height(),
                      term.bottom() + 1 + lines, term.top() - lines - size.height(),
                      term.bottom() + 1,         term.top() - size.height()};
  for (const int top : tops) {
    if (top >= screen.top() && top + size.height() <= screen.bottom() + 1) return {left, top};
  }
  return {left, screen.bottom() + 1 - size.height()};
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
    // The toolkit would read the last brackets of the label as the patterns.
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
