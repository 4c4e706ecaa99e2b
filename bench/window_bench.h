// The frame of the benchmarks on the real window: the program with its window, and a user who
// clicks and waits until what came of it is painted.
#pragma once

#include <QString>
#include <memory>
#include <string>

#include "no_machine.h"
#include "program/program.h"
#include "window/main_window.h"

class QWidget;

namespace quill::bench {

// Every file has the same content.
class OneFile : public NoDisk {
 public:
  std::string Read(const std::string& /*path*/) override { return content; }
  std::string content;
};

class ShownProgram {
 public:
  ShownProgram();

  Form1& Form() { return program_.Form(); }
  Program& TheProgram() { return program_; }
  OneFile& Disk() { return disk_; }
  // Before this the model can be set up without being shown.
  void ShowWindow();
  template <class W = QWidget>
  W& Find(const char* name) const {
    return *window_->findChild<W*>(QString::fromLatin1(name));
  }
  // With the mouse, until all is painted.
  void Press(const char* name);
  static void Paint();

 private:
  NoDialogs dialogs_;
  OneFile disk_;
  Program program_{dialogs_, disk_};
  std::unique_ptr<MainWindow> window_;
};

// Runs the benchmarks without a screen, and then `done`, while the toolkit still runs.
int RunWindowBenchmarks(int argc, char** argv, void (*done)());

}  // namespace quill::bench
