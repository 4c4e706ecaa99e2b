// The text on the real window, by length: opening it, the page, and the effects of keys and marks.
#include <QAction>
#include <QScrollBar>
#include <QTextEdit>
#include <QtTest>
#include <memory>
#include <vector>

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
  }

  void Use(std::string text) {
    Disk().content = std::move(text);
    Open();
  }
  // Shows a text with lists, tables and pictures, of that many characters.
  void Use(std::int64_t characters) {
    if (characters != characters_) Use(GeneratedText(Kind::kLaidOut, characters));
    characters_ = characters;
  }
  void Open() {
    characters_ = 0;
    Form().RichTextBox1.LoadFile(U"novel.tbf");
    // The window is updated at the end of an action.
    PutCaretAt(0);
  }
  void Choose(const char* item) { Find<QAction>(item).trigger(); }
  void PutCaretAt(Position at) {
    TheProgram().Select(at, 0);
    Choose("mnuPreProcess");
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&View(), key, modifiers);
  }
  void Resize(int width) { View().window()->resize(width, View().window()->height()); }
  QTextEdit& View() { return Find<QTextEdit>("RichTextBox1"); }
  QScrollBar& Bar() { return *View().verticalScrollBar(); }
  TextSurface& Text() { return Form().RichTextBox1; }

 private:
  std::int64_t characters_ = 0;
};

// Created at first use, and destroyed while the toolkit still runs.
std::unique_ptr<Reader> shownReader;

Reader& Shown() {
  if (!shownReader) shownReader = std::make_unique<Reader>();
  return *shownReader;
}

namespace {

constexpr auto kNothing = [] {};

void Open(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  FromRestToRest(state, kNothing, [&] { reader.Open(); });
}

// One step at a time, from the smallest size up or from the largest down.
void Zoom(benchmark::State& state, Qt::Key key, Qt::Key back) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  for (int i = 0; i < 12; ++i) reader.Key(back, Qt::ControlModifier);
  FromRestToRest(state, kNothing, [&] { reader.Key(key, Qt::ControlModifier); });
  reader.Key(Qt::Key_0, Qt::ControlModifier);
}

void Resize(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  int width = 1000;
  FromRestToRest(state, kNothing, [&] { reader.Resize(width = 2200 - width); });
}

void End(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  FromRestToRest(
      state, [&] { reader.Key(Qt::Key_Home, Qt::ControlModifier); },
      [&] { reader.Key(Qt::Key_End, Qt::ControlModifier); });
}

// To a place not yet seen.
void Drag(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  reader.Bar().setSliderDown(true);
  double part = 0;
  FromRestToRest(state, kNothing, [&] {
    part += 0.07;
    reader.Bar().setSliderPosition(static_cast<int>(part * reader.Bar().maximum()));
  });
  reader.Bar().setSliderDown(false);
}

// The next mark is a few lines on, or thousands.
void Find(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  reader.Open();
  const Position distance = state.range(1);
  std::vector<Range> marks;
  for (Position at = distance; at < reader.Text().Length(); at += distance) {
    marks.push_back({at, at + 5});
  }
  reader.Text().Format(marks, {.colour = kMarkedA});
  reader.Choose("mnuPostProcess");
  FromRestToRest(state, kNothing, [&] { reader.Press("FindAMarker"); });
  if (reader.Text().SelLength != 5) state.SkipWithError("no mark found");
}

// Two clicks, in the middle of the text.
void Mark(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  reader.Open();
  Position begin = state.range(0) / 2;
  const auto select = [&] {
    begin += 40;
    reader.PutCaretAt(begin);
    reader.TheProgram().Select(begin, 10);
  };
  FromRestToRest(state, select, [&] {
    reader.Press("DefAMarker");
    reader.Press("AMarkSet");
  });
  if (!reader.Text().Doc().At(begin).bold) state.SkipWithError("not marked");
}

void TypeAt(benchmark::State& state, Reader& reader, Position at) {
  reader.PutCaretAt(at);
  reader.Choose("mnuPostProcess");
  const Position before = reader.Text().Length();
  FromRestToRest(state, kNothing, [&] { reader.Key(Qt::Key_X); });
  if (reader.Text().Length() == before) state.SkipWithError("nothing typed");
}

void Type(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  reader.Open();
  TypeAt(state, reader, state.range(0) / 2);
}

void ChangeMode(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(state.range(0));
  reader.PutCaretAt(state.range(0) / 2);
  FromRestToRest(
      state, [&] { reader.Choose("mnuPreProcess"); }, [&] { reader.Choose("mnuPostProcess"); });
}

std::string OneParagraph(std::int64_t characters) {
  std::string text = "{\\rtf1 ";
  while (static_cast<std::int64_t>(text.size()) < characters) text += "Nothing happened then. ";
  return text + "}";
}

void OpenParagraph(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(OneParagraph(state.range(0)));
  FromRestToRest(state, kNothing, [&] { reader.Open(); });
}

void TypeInParagraph(benchmark::State& state) {
  Reader& reader = Shown();
  reader.Use(OneParagraph(state.range(0)));
  TypeAt(state, reader, state.range(0) / 2);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(100'000)->Arg(4'400'000)->Arg(10'000'000);
  benchmark->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void Distances(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({100'000, 1'000})->Args({4'400'000, 1'000})->Args({4'400'000, 300'000});
  benchmark->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
}

void Lengths(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(100'000)->Arg(1'000'000);
  benchmark->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(Open)->Name("TextInWindow/Open")->Apply(Sizes);
BENCHMARK_CAPTURE(Zoom, In, Qt::Key_Plus, Qt::Key_Minus)->Name("TextInWindow/ZoomIn")->Apply(Sizes);
BENCHMARK_CAPTURE(Zoom, Out, Qt::Key_Minus, Qt::Key_Plus)
    ->Name("TextInWindow/ZoomOut")
    ->Apply(Sizes);
BENCHMARK(Resize)->Name("TextInWindow/Resize")->Apply(Sizes);
BENCHMARK(End)->Name("TextInWindow/End")->Apply(Sizes);
BENCHMARK(Drag)->Name("TextInWindow/Drag")->Apply(Sizes);
BENCHMARK(Find)->Name("TextInWindow/FindAMarker")->ArgNames({"", "apart"})->Apply(Distances);
BENCHMARK(Mark)->Name("TextInWindow/MarkATerm")->Apply(Sizes);
BENCHMARK(Type)->Name("TextInWindow/Type")->Apply(Sizes);
BENCHMARK(ChangeMode)->Name("TextInWindow/ChangeMode")->Apply(Sizes);
BENCHMARK(OpenParagraph)->Name("TextInWindow/OpenParagraph")->Apply(Lengths);
BENCHMARK(TypeInParagraph)->Name("TextInWindow/TypeInParagraph")->Apply(Lengths);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  return quill::bench::RunWindowBenchmarks(argc, argv, [] { quill::bench::shownReader.reset(); });
}
