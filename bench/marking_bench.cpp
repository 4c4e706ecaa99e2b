// Marking by hand: two clicks on a selection, which is usually a term and, by accident, the whole
// text.
//
// The term is typed into its box key by key, and over the selection as one edit.
#include <benchmark/benchmark.h>

#include "generated_text.h"
#include "no_machine.h"
#include "program/program.h"
#include "rtf/reader.h"

namespace quill::bench {
namespace {

void MarkTheWholeText(benchmark::State& state) {
  NoDialogs dialogs;
  NoDisk disk;
  Program program(dialogs, disk);
  Form1& form = program.Form();
  form.PreFrame.Visible = true;
  form.RichTextBox1.SetDocument(*rtf::Read(GeneratedText(Kind::kProse, state.range(0))));
  const Position characters = form.RichTextBox1.Length();
  for (auto _ : state) {
    program.Select(0, characters);
    program.Click(form.DefAMarker);
    program.Click(form.AMarkSet);
    if (!form.RichTextBox1.Doc().At(characters - 1).bold) return state.SkipWithError("not marked");
  }
  state.SetItemsProcessed(characters * state.iterations());
}

BENCHMARK(MarkTheWholeText)
    ->Name("Marking/TheWholeText")
    ->RangeMultiplier(10)
    ->Range(1'000, 1'000'000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
