#include "window_bench.h"

#include <benchmark/benchmark.h>

#include <QtTest>

#include "window/appearance.h"
#include "window/application.h"

namespace quill::bench {

ShownProgram::ShownProgram() { Form().IDFrame.Visible = false; }

void ShownProgram::ShowWindow() {
  window_ = std::make_unique<MainWindow>(program_);
  window_->resize(window_->sizeHint());
  window_->show();
  Paint();
}

void ShownProgram::Press(const char* name) {
  QTest::mouseClick(&Find(name), Qt::LeftButton);
  Paint();
}

void ShownProgram::Paint() { QApplication::processEvents(); }

int RunWindowBenchmarks(int argc, char** argv, void (*done)()) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  SetLook(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  done();
  return 0;
}

}  // namespace quill::bench
