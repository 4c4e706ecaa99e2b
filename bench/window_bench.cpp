#include "window_bench.h"

#include <QEventLoop>
#include <QTimer>
#include <QtTest>
#include <chrono>
#include <ctime>

#include "window/application.h"
#include "window/shared/appearance.h"

namespace quill::bench {

ShownProgram::ShownProgram() { Form().IDFrame.Visible = false; }

void ShownProgram::ShowWindow() {
  window_ = std::make_unique<MainWindow>(program_);
  window_->resize(window_->sizeHint());
  window_->show();
  Paint();
}

void ShownProgram::Press(const char* name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }

void ShownProgram::Paint() { QApplication::processEvents(); }

namespace {

double ProcessorMilliseconds() { return 1000.0 * std::clock() / CLOCKS_PER_SEC; }

void Wait(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

// A blinking caret counts as rest.
void AwaitRest() {
  constexpr int kStep = 50;
  constexpr double kIdle = 5;
  for (int idle = 0; idle < 3;) {
    const double before = ProcessorMilliseconds();
    Wait(kStep);
    idle = ProcessorMilliseconds() - before < kIdle ? idle + 1 : 0;
  }
}

}  // namespace

void FromRestToRest(benchmark::State& state, const std::function<void()>& prepare,
                    const std::function<void()>& act) {
  double painted = 0;
  double rested = 0;
  for (auto _ : state) {
    prepare();
    ShownProgram::Paint();
    AwaitRest();
    const auto begin = std::chrono::steady_clock::now();
    const double before = ProcessorMilliseconds();
    act();
    ShownProgram::Paint();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    painted += ProcessorMilliseconds() - before;
    state.SetIterationTime(took.count());
    AwaitRest();
    rested += ProcessorMilliseconds() - before;
  }
  state.counters["painted_ms"] = {painted, benchmark::Counter::kAvgIterations};
  state.counters["rest_ms"] = {rested, benchmark::Counter::kAvgIterations};
}

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
