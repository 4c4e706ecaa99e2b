#include <QAction>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QPainter>
#include <QSvgRenderer>
#include <QTimer>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "disk/posix_disk.h"
#include "program/program.h"
#include "window/application.h"
#include "window/copies/abrupt_end.h"
#include "window/copies/unsaved_copies.h"
#include "window/main_window.h"
#include "window/shared/appearance.h"
#include "window/window_dialogs.h"

namespace {

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

[[noreturn]] void Fail(const std::string& why) {
  std::fprintf(stderr, "quillorandix: %s\n", why.c_str());
  std::exit(1);
}

bool HasDisplay() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

// Without a session bus, the toolkit's D-Bus library would start one as a child process.
void StartNoSessionBus() {
  if (IsSet("DBUS_SESSION_BUS_ADDRESS")) return;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (!folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"))) return;
  qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
}

QIcon Icon() {
  QIcon icon;
  QSvgRenderer drawing(QStringLiteral(":/icon.svg"));
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.end();
    icon.addPixmap(pixmap);
  }
  return icon;
}

// The text to open at startup; empty for none. Exits on --help, --version and invalid arguments.
QString TextFromArguments(const QCoreApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Marks and tags how narrative texts express time."));
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("file"),
                               QStringLiteral("A rich text or a working copy to open."),
                               QStringLiteral("[file]"));
  parser.process(application);
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) Fail("one text at a time, please");
  if (files.isEmpty()) return {};
  const QFileInfo file(files.front());
  if (!file.isFile() || !file.isReadable()) {
    Fail("cannot read " + files.front().toLocal8Bit().toStdString());
  }
  return file.absoluteFilePath();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(QStringLiteral("quillorandix"));
  QCoreApplication::setApplicationVersion(QStringLiteral(QUILL_VERSION));
  if (!HasDisplay()) {
    const QCoreApplication questions(argc, argv);
    TextFromArguments(questions);
    Fail("there is no display; start it in a graphical session, or set DISPLAY");
  }
  // A limit on file sizes then makes a save fail, with a message, instead of ending the program.
  std::signal(SIGXFSZ, SIG_IGN);
  StartNoSessionBus();
  quill::Application application(argc, argv);
  // Numbers in files have a decimal point, whatever the user's locale.
  std::setlocale(LC_NUMERIC, "C");
  const QString text = TextFromArguments(application);
  QApplication::setDesktopFileName(QStringLiteral("org.quillorandix.Quillorandix"));
  QApplication::setWindowIcon(Icon());
  quill::SetLook(application);

  quill::PosixDisk disk;
  quill::WindowDialogs dialogs;
  quill::Program program(dialogs, disk);
  quill::MainWindow window(program);
  quill::UnsavedCopies copies(program.Form(), quill::UserCopyFolder());
  window.Inform(&copies);
  const quill::AbruptEnd abruptEnd([&copies] { copies.Take(); });
  dialogs.Attach(window, program.Form());
  const auto open = [&](const QString& path) {
    dialogs.ChooseNext(path);
    window.findChild<QAction*>(QStringLiteral("mnuFileOpen"))->trigger();
  };
  window.OnDroppedFile(open);
  window.show();
  if (!text.isEmpty()) QTimer::singleShot(0, &window, [&] { open(text); });
  const int status = QApplication::exec();
  copies.Take();  // before signals again end the process at once
  return status;
}
