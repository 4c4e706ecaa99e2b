// Reading a dictionary into the parsing list, from the click to the sorted list: in sorted, reverse
// and random order, and into a list that is already half full.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <numeric>
#include <string>

#include "no_machine.h"
#include "program/program.h"

namespace quill::bench {
namespace {

class OneFile final : public NoDisk {
 public:
  std::string bytes;
  std::string Read(const std::string& /*path*/) override { return bytes; }
};

enum class Order { kSorted, kReversed, kMixed };

std::string Dictionary(int64_t lines, Order order) {
  std::string bytes;
  for (int64_t i = 0; i < lines; ++i) {
    const int64_t number = order == Order::kSorted     ? i
                           : order == Order::kReversed ? lines - i
                                                       : i * 7919 % 99'991;
    bytes += "the day " + std::to_string(100'000 + number) + "\\    \\B< one day earlier >\r\n";
  }
  return bytes;
}

void ReadIn(benchmark::State& state, Order order, int times) {
  NoDialogs dialogs;
  OneFile disk;
  disk.bytes = Dictionary(state.range(0), order);
  Program program(dialogs, disk);
  Form1& form = program.Form();
  form.PreFrame.Visible = true;
  form.Frame5.Enabled = true;
  for (auto _ : state) {
    form.Parse_listbox.Clear();
    for (int i = 0; i < times; ++i) program.Click(form.Add_global_parsing_list);
  }
  if (form.Parse_listbox.ListCount() == 0) state.SkipWithError("nothing was read");
  state.SetItemsProcessed(state.range(0) * times * state.iterations());
}

// A plain pass over the bytes of the file.
void PlainPass(benchmark::State& state) {
  const std::string bytes = Dictionary(state.range(0), Order::kMixed);
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), 0U));
  }
  state.SetItemsProcessed(state.range(0) * state.iterations());
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
  // The last is more than a list can hold.
  for (const int64_t lines : {300, 3'000, 30'000, 60'000}) benchmark->Arg(lines);
  benchmark->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(ReadIn, Sorted, Order::kSorted, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIn, Reversed, Order::kReversed, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIn, Mixed, Order::kMixed, 1)->Apply(Sizes);
BENCHMARK_CAPTURE(ReadIn, Twice, Order::kMixed, 2)->Apply(Sizes);
BENCHMARK(PlainPass)->Name("ReadIn/PlainPass")->Apply(Sizes);

}  // namespace
}  // namespace quill::bench
