// Tags: what a click costs with the longest possible list, of lines of usual length, over a text
// with a word for each.
//
// The worst case looks at every line: the tag is the last one, or no line tags the same word. It is
// accompanied by a plain pass over the characters of all lines.
#include <benchmark/benchmark.h>

#include <numeric>

#include "generated_text.h"
#include "no_machine.h"
#include "program/program.h"
#include "rtf/reader.h"
#include "tag_lines.h"

namespace quill::bench {
namespace {

class Tags {
 public:
  explicit Tags(int lines) : program_(dialogs_, disk_), lines_(lines) {
    Form().RichTextBox1.SetDocument(*rtf::Read(GeneratedText(Kind::kProse, kSpacing * lines + 10)));
    Form().mnuProcess.Enabled = true;
    program_.Click(Form().mnuPostProcess);
    for (int i = 0; i < lines; ++i) Form().TagList.AddItem(TagLine(i));
  }

  Form1& Form() { return program_.Form(); }
  void SelectLast() { program_.ClickItem(Form().TagList, lines_ - 1); }
  void CheckAtLast() {
    program_.Select(kSpacing * (lines_ - 1) + 2, 0);
    program_.Click(Form().TagChecker);
  }
  void RemoveSelected() { program_.Click(Form().RemoveItem); }
  void PutBack() { Form().TagList.AddItem(TagLine(lines_ - 1)); }

 private:
  NoDialogs dialogs_;
  NoDisk disk_;
  Program program_;
  int lines_;
};

void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(1000)->Arg(ListBox::kMostItems)->Unit(benchmark::kMicrosecond);
}

void Select(benchmark::State& state) {
  Tags tags(static_cast<int>(state.range(0)));
  for (auto _ : state) tags.SelectLast();
}

void Check(benchmark::State& state) {
  Tags tags(static_cast<int>(state.range(0)));
  for (auto _ : state) tags.CheckAtLast();
  if (tags.Form().TagList.ListIndex < 0) state.SkipWithError("no tag was found");
}

// Includes rewriting the file, except for the disk itself.
void Remove(benchmark::State& state) {
  Tags tags(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    state.PauseTiming();
    tags.SelectLast();
    state.ResumeTiming();
    tags.RemoveSelected();
    state.PauseTiming();
    tags.PutBack();
    state.ResumeTiming();
  }
}

void PlainPass(benchmark::State& state) {
  std::u32string all;
  for (int i = 0; i < static_cast<int>(state.range(0)); ++i) all += TagLine(i);
  for (auto _ : state) benchmark::DoNotOptimize(std::accumulate(all.begin(), all.end(), 0U));
  state.SetBytesProcessed(static_cast<std::int64_t>(all.size() * sizeof(char32_t)) *
                          state.iterations());
}

BENCHMARK(Select)->Name("Tags/Select")->Apply(Sizes);
BENCHMARK(Check)->Name("Tags/Check")->Apply(Sizes);
BENCHMARK(Remove)->Name("Tags/Remove")->Apply(Sizes);
BENCHMARK(PlainPass)->Name("Tags/PlainPass")->Apply(Sizes);

}  // namespace
}  // namespace quill::bench
