// Loading and saving without the disk: from bytes to a document and back.
//
// Each is accompanied by a plain pass over the same bytes, the best that the machine could do.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <numeric>
#include <string>

#include "generated_text.h"
#include "rtf/reader.h"
#include "rtf/writer.h"
#include "text/marks.h"
#include "words.h"

namespace quill::bench {
namespace {

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->RangeMultiplier(10)->Range(100'000, 10'000'000)->Unit(benchmark::kMillisecond);
}

void Report(benchmark::State& state, std::size_t bytes, Position characters) {
  state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * state.iterations());
  state.SetItemsProcessed(characters * state.iterations());
}

Document Loaded(Kind kind, std::int64_t characters) {
  return *rtf::Read(GeneratedText(kind, characters));
}

void Load(benchmark::State& state, Kind kind) {
  const std::string bytes = GeneratedText(kind, state.range(0));
  Position characters = 0;
  for (auto _ : state) {
    // Includes a copy of the bytes: the reader keeps them, and they normally come fresh from a
    // file.
    const auto document = rtf::Read(bytes);
    if (!document) return state.SkipWithError("the generated text does not load");
    characters = document->Length();
  }
  Report(state, bytes.size(), characters);
}

void Save(benchmark::State& state, const Document& document) {
  std::size_t size = 0;
  for (auto _ : state) {
    const std::string bytes = rtf::Write(document);
    size = bytes.size();
    benchmark::DoNotOptimize(bytes.data());
  }
  Report(state, size, document.Length());
}

void SaveUnchanged(benchmark::State& state, Kind kind) {
  Save(state, Loaded(kind, state.range(0)));
}

void SaveNewMarks(benchmark::State& state) {
  Document document = Loaded(Kind::kProse, state.range(0));
  document.Apply(EverySecondWord(document.Text()), {.colour = kMarkedB, .bold = true});
  Save(state, document);
}

// Removes every mark of the file, so that each of its groups is dissolved.
void SaveWithoutMarks(benchmark::State& state) {
  Document document = Loaded(Kind::kMarked, state.range(0));
  document.Apply({0, document.Length()}, {.colour = kPlain, .bold = false});
  Save(state, document);
}

void PlainSum(benchmark::State& state) {
  const std::string bytes = GeneratedText(Kind::kProse, state.range(0));
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), 0U));
  }
  Report(state, bytes.size(), state.range(0));
}

void PlainCopy(benchmark::State& state) {
  const std::string bytes = GeneratedText(Kind::kProse, state.range(0));
  for (auto _ : state) {
    const std::string copy = bytes;
    benchmark::DoNotOptimize(copy.data());
  }
  Report(state, bytes.size(), state.range(0));
}

BENCHMARK_CAPTURE(Load, Prose, Kind::kProse)->Apply(Sizes);
BENCHMARK_CAPTURE(Load, EverySecondWordMarked, Kind::kMarked)->Apply(Sizes);
BENCHMARK_CAPTURE(Load, ControlWordsOnly, Kind::kControlWords)->Apply(Sizes);
BENCHMARK_CAPTURE(SaveUnchanged, Prose, Kind::kProse)->Apply(Sizes);
BENCHMARK_CAPTURE(SaveUnchanged, EverySecondWordMarked, Kind::kMarked)->Apply(Sizes);
BENCHMARK(SaveNewMarks)->Apply(Sizes);
BENCHMARK(SaveWithoutMarks)->Apply(Sizes);
BENCHMARK(PlainSum)->Apply(Sizes);
BENCHMARK(PlainCopy)->Apply(Sizes);

}  // namespace
}  // namespace quill::bench
