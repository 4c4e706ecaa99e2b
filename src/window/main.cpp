#include <QApplication>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "files/posix_disk.h"
#include "program/program.h"
#include "window/appearance.h"
#include "window/main_window.h"
#include "window/window_dialogs.h"

namespace {

bool IsSet(const char* variable) {
  const char* const value = std::getenv(variable);
  return value != nullptr && *value != '\0';
}

bool HasDisplay() {
  return IsSet("DISPLAY") || IsSet("WAYLAND_DISPLAY") || IsSet("QT_QPA_PLATFORM");
}

}  // namespace

int main(int argc, char** argv) {
  if (!HasDisplay()) {
    std::fputs(
        "quillorandix: there is no display; start it in a graphical session, or set DISPLAY.\n",
        stderr);
    return 1;
  }
  // A limit on the size of files makes a save fail, which is told, instead of ending the program.
  std::signal(SIGXFSZ, SIG_IGN);
  QApplication application(argc, argv);
  // Numbers in files have a point whatever the user's locale.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setApplicationName(QStringLiteral("quillorandix"));
  quill::SetLook(application);

  quill::PosixDisk disk;
  quill::WindowDialogs dialogs;
  quill::Program program(dialogs, disk);
  quill::MainWindow window(program);
  dialogs.Attach(window, program.Form());
  window.show();
  return QApplication::exec();
}
