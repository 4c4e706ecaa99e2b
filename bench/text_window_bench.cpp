// The text on the real window, in a novel of 3.2 million characters: from opening it until it can
// be read, and from a click or a key until what came of it is painted.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QTextEdit>
#include <QtTest>
#include <memory>

#include "generated_text.h"
#include "rtf/reader.h"
#include "text/marks.h"
#include "window_bench.h"

namespace quill::bench {

class Reader : public ShownProgram {
 public:
  Reader() {
    Form().mnuProcess.Enabled = true;
    ShowWindow();
    Disk().content = GeneratedText(Kind::kLaidOut, 3'200'000);
    Open();
    Paint();
  }

  void Open() {
    Form().RichTextBox1.LoadFile(U"novel.tbf");
    // A key that changes nothing: the window follows at the end of an action.
    TheProgram().Select(0, 0);
    Choose("mnuPreProcess");
  }
  void Choose(const char* item) {
    Find<QAction>(item).trigger();
    Paint();
  }
  void Key(Qt::Key key) {
    QTest::keyClick(&Find<QTextEdit>("RichTextBox1"), key);
    Paint();
  }
  // Where the selection is shown and nothing else has to be laid out any more.
  void PutCaretAt(Position at) {
    TheProgram().Select(at, 0);
    Choose("mnuPreProcess");
    QTest::qWait(1500);
  }
};

// Made at the first use, and taken down while the toolkit still runs.
std::unique_ptr<Reader> shownReader;

Reader& Shown() {
  if (!shownReader) shownReader = std::make_unique<Reader>();
  return *shownReader;
}

namespace {

void Open(benchmark::State& state) {
  Reader& reader = Shown();
  for (auto _ : state) reader.Open();
}

// The next mark stands a few lines on, or thousands.
void Find(benchmark::State& state) {
  Reader& reader = Shown();
  const Position distance = state.range(0);
  reader.Open();
  TextSurface& text = reader.Form().RichTextBox1;
  std::vector<Range> marks;
  for (Position at = distance; at < text.Length(); at += distance) marks.push_back({at, at + 5});
  text.Format(marks, {.colour = kMarkedA});
  reader.Choose("mnuPostProcess");
  QTest::qWait(2000);
  for (auto _ : state) {
    reader.Press("FindAMarker");
    if (text.SelLength != 5) return state.SkipWithError("no mark found");
  }
}

// Two clicks.
void Mark(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Open();
  reader.PutCaretAt(state.range(0));
  TextSurface& text = reader.Form().RichTextBox1;
  for (auto _ : state) {
    state.PauseTiming();
    const Position begin = text.SelStart + 40;
    reader.TheProgram().Select(begin, 10);
    state.ResumeTiming();
    reader.Press("DefAMarker");
    reader.Press("AMarkSet");
    if (!text.Doc().At(begin).bold) return state.SkipWithError("not marked");
  }
}

void Type(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Open();
  reader.PutCaretAt(state.range(0));
  reader.Choose("mnuPostProcess");
  const Position before = reader.Form().RichTextBox1.Length();
  for (auto _ : state) reader.Key(Qt::Key_X);
  if (reader.Form().RichTextBox1.Length() == before) state.SkipWithError("nothing typed");
}

void ChangeMode(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Open();
  reader.PutCaretAt(1'600'000);
  for (auto _ : state) {
    reader.Choose("mnuPostProcess");
    reader.Choose("mnuPreProcess");
  }
}

BENCHMARK(Open)->Name("TextInWindow/Open")->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(Find)
    ->Name("TextInWindow/FindAMarker")
    ->Arg(1000)
    ->Arg(100'000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Mark)
    ->Name("TextInWindow/MarkATerm")
    ->Arg(1000)
    ->Arg(1'600'000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Type)
    ->Name("TextInWindow/Type")
    ->Arg(1000)
    ->Arg(1'600'000)
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeMode)
    ->Name("TextInWindow/ChangeMode")
    ->Iterations(20)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  return quill::bench::RunWindowBenchmarks(argc, argv, [] { quill::bench::shownReader.reset(); });
}
