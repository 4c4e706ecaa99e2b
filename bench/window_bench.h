// The framework for benchmarks on the real window: the program with its window, and a user who acts
// when the processor rests and waits until it rests again. A row gives the wall-clock time until
// the effect of the action was painted and, as counters, the processor time until then (painted_ms)
// and until rest (rest_ms).
#pragma once

#include <benchmark/benchmark.h>

#include <QString>
#include <functional>
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
  // Until this call, the model can be set up without being shown.
  void ShowWindow();
  template <class W = QWidget>
  W& Find(const char* name) const {
    return *window_->findChild<W*>(QString::fromLatin1(name));
  }
  // Clicks with the mouse.
  void Press(const char* name);
  static void Paint();

 private:
  NoDialogs dialogs_;
  OneFile disk_;
  Program program_{dialogs_, disk_};
  std::unique_ptr<MainWindow> window_;
};

// Repeats an action, each time after a preparation that is not counted. Both must leave everything
// ready for the next round.
void FromRestToRest(benchmark::State& state, const std::function<void()>& prepare,
                    const std::function<void()>& act);

// Runs the benchmarks without a screen, and then `done`, while the toolkit still runs.
int RunWindowBenchmarks(int argc, char** argv, void (*done)());

}  // namespace quill::bench
