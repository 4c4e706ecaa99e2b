// Walking: from a click on "Next <A> Marker" to the term found, or to the end of the text.
//
// A click looks at the text twice: it clears the underlines, then it looks for the colour. The
// worst case is a text without marks, where a click looks at every character; a text full of marks
// shows the cost of a click that finds its term at once.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <numeric>
#include <utility>
#include <vector>

#include "generated_text.h"
#include "no_machine.h"
#include "program/program.h"
#include "rtf/reader.h"
#include "text/marks.h"

namespace quill::bench {
namespace {

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(10)->Range(100'000, 10'000'000)->Unit(benchmark::kMillisecond);
}

// The program in its second mode, with a text open.
class Walk {
 public:
  explicit Walk(Document document) : program_(dialogs_, disk_) {
    Form().RichTextBox1.SetDocument(std::move(document));
    Form().mnuProcess.Enabled = true;
    program_.Click(Form().mnuPostProcess);
  }

  Form1& Form() { return program_.Form(); }
  void Restart() { program_.Click(Form().Restart_PP); }
  // Whether a term was found.
  bool Next() {
    program_.Click(Form().FindAMarker);
    return Form().EndPosition.Text.Get() != U"End";
  }

 private:
  NoDialogs dialogs_;
  NoDisk disk_;
  Program program_;
};

void WalkToTheEnd(benchmark::State& state, Document document) {
  const Position characters = document.Length();
  Walk walk(std::move(document));
  for (auto _ : state) {
    if (walk.Next()) return state.SkipWithError("a mark was found where there is none");
  }
  state.SetItemsProcessed(characters * state.iterations());
}

void NoMark(benchmark::State& state) {
  WalkToTheEnd(state, *rtf::Read(GeneratedText(Kind::kProse, state.range(0))));
}

// Every word is marked as the other kind: no two neighbours have the same format.
void OnlyMarksOfTheOtherKind(benchmark::State& state) {
  Document document = *rtf::Read(GeneratedText(Kind::kMarked, state.range(0)));
  for (Position at = 0; at < document.Length();) {
    const Position mark = document.FindColour({at, document.Length()}, kMarkedA);
    at = document.FindOtherColour({mark, document.Length()}, kMarkedA);
    document.Apply({mark, at}, {.colour = kMarkedB});
  }
  WalkToTheEnd(state, std::move(document));
}

// One click from a mark to the next one.
void EverySecondWordMarked(benchmark::State& state) {
  Walk walk(*rtf::Read(GeneratedText(Kind::kMarked, state.range(0))));
  for (auto _ : state) {
    if (walk.Next()) continue;
    walk.Restart();
  }
  state.SetItemsProcessed(state.iterations());
}

// A plain pass over as many format numbers.
void PlainPass(benchmark::State& state) {
  const std::vector<std::uint16_t> formats(static_cast<std::size_t>(state.range(0)), 3);
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::accumulate(formats.begin(), formats.end(), 0U));
  }
  state.SetItemsProcessed(state.range(0) * state.iterations());
}

BENCHMARK(NoMark)->Name("Walk/NoMark")->Apply(Sizes);
BENCHMARK(OnlyMarksOfTheOtherKind)->Name("Walk/OnlyMarksOfTheOtherKind")->Apply(Sizes);
BENCHMARK(EverySecondWordMarked)->Name("Walk/EverySecondWordMarked")->Apply(Sizes);
BENCHMARK(PlainPass)->Name("Walk/PlainPass")->Apply(Sizes);

}  // namespace
}  // namespace quill::bench
