// Comparing readers, without the time of reading their texts: twenty readers of one novel, with
// 5,000 tags each, make 190 pairs. Overlapping readings are the worse case: every span of one meets
// several of the other.
#include <benchmark/benchmark.h>

#include <map>
#include <random>
#include <set>
#include <string>
#include <utility>

#include "companion/agreement_figures.h"

namespace quill::bench {
namespace {

using companion::Reading;

constexpr Position kNovel = 3'200'000;

Reading RandomReading(std::mt19937& random, int tags, Position longest) {
  std::set<std::pair<Position, Position>> spans;
  while (static_cast<int>(spans.size()) < tags) {
    // Readers agree on most places: terms begin at one position in 256.
    const Position begin = static_cast<Position>(random() % (kNovel / 256)) * 256;
    spans.insert({begin, begin + 1 + static_cast<Position>(random()) % longest});
  }
  Reading reading;
  for (const auto& [begin, end] : spans) {
    companion::Judgement judgement{{begin, end}, {}, {}};
    for (companion::Label& label : judgement.labels) label = static_cast<int>(random() % 5) - 1;
    reading.push_back(judgement);
  }
  return reading;
}

void Compare(benchmark::State& state, companion::Matching matching, Position longest) {
  std::mt19937 random(20);
  std::map<std::string, Reading> readings;
  for (int reader = 0; reader < 20; ++reader) {
    readings["reader " + std::to_string(reader)] =
        RandomReading(random, static_cast<int>(state.range(0)), longest);
  }
  for (auto _ : state) benchmark::DoNotOptimize(CompareReaders(readings, matching));
}

BENCHMARK_CAPTURE(Compare, EqualSpans, companion::Matching::kEqual, 4)
    ->Arg(5'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Compare, OverlappingSpans, companion::Matching::kOverlapping, 1'000)
    ->Arg(5'000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
