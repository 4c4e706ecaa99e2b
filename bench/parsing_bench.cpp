// Marking the hits of a list: from the click on "Parse text for all listed terms" to the marked
// model.
//
// The terms are words of the text, so that all lists of more than one item have hits everywhere; a
// second set has words that never occur. The worst case is a text of one repeated letter and a list
// of all prefixes of a word of that letter: every place is a hit of almost every term.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <numeric>
#include <string>
#include <utility>

#include "generated_text.h"
#include "no_machine.h"
#include "program/program.h"
#include "rtf/reader.h"

namespace quill::bench {
namespace {

class Parsing {
 public:
  Parsing(Document document, const std::vector<std::u32string>& lemmas)
      : program_(dialogs_, disk_), plain_(std::move(document)) {
    Form().PreFrame.Visible = true;
    Form().Frame5.Enabled = true;
    std::vector<std::u32string> items;
    for (const std::u32string& lemma : lemmas) items.push_back(lemma + U"\\      |A< d >");
    // The last item of a list is not searched for.
    items.push_back(U"\U0010FFFF\\      |A< d >");
    Form().Parse_listbox.AddItems(items);
  }

  Form1& Form() { return program_.Form(); }
  void Restart() { Form().RichTextBox1.SetDocument(plain_); }
  void ParseAll() { program_.Click(Form().Parse_1); }
  std::int64_t MarkedCharacters() {
    const Document& document = Form().RichTextBox1.Doc();
    std::int64_t marked = 0;
    for (Position at = 0; at < document.Length(); ++at) marked += document.At(at).bold ? 1 : 0;
    return marked;
  }

 private:
  NoDialogs dialogs_;
  NoDisk disk_;
  Program program_;
  Document plain_;
};

void Run(benchmark::State& state, Document document, const std::vector<std::u32string>& lemmas) {
  const Position characters = document.Length();
  Parsing parsing(std::move(document), lemmas);
  for (auto _ : state) {
    state.PauseTiming();
    parsing.Restart();
    state.ResumeTiming();
    parsing.ParseAll();
  }
  state.SetItemsProcessed(characters * state.iterations());
  state.counters["marked"] = static_cast<double>(parsing.MarkedCharacters());
}

std::vector<std::u32string> Distinct(std::u32string_view text, std::size_t count) {
  std::vector<std::u32string> phrases;
  // Two words per term, from places far apart.
  const std::size_t stride = text.size() / (count + 1);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t begin = text.find(U' ', i * stride) + 1;
    const std::size_t end = text.find(U' ', text.find(U' ', begin) + 1);
    phrases.emplace_back(text.substr(begin, end - begin));
  }
  return phrases;
}

void Phrases(benchmark::State& state) {
  Document document = *rtf::Read(GeneratedText(Kind::kProse, state.range(0)));
  const auto terms = Distinct(document.Text(), static_cast<std::size_t>(state.range(1)));
  Run(state, std::move(document), terms);
}

// The same beginnings, to lead the search on, but with an ending that the text lacks.
void NoHits(benchmark::State& state) {
  Document document = *rtf::Read(GeneratedText(Kind::kProse, state.range(0)));
  auto terms = Distinct(document.Text(), static_cast<std::size_t>(state.range(1)));
  for (std::size_t i = 0; i < terms.size(); ++i)
    terms[i] += U" #" + std::u32string(1, U'0' + i % 10);
  Run(state, std::move(document), terms);
}

void EveryBeginningOfOneWord(benchmark::State& state) {
  const std::string paragraph(static_cast<std::size_t>(state.range(0)), 'a');
  std::vector<std::u32string> terms;
  for (std::int64_t length = 1; length <= state.range(1); ++length) {
    terms.emplace_back(static_cast<std::size_t>(length), U'a');
  }
  Run(state, *rtf::Read("{\\rtf1 " + paragraph + "}"), terms);
}

void PlainPass(benchmark::State& state) {
  const std::u32string text(static_cast<std::size_t>(state.range(0)), U'a');
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::accumulate(text.begin(), text.end(), char32_t{0}));
  }
  state.SetItemsProcessed(state.range(0) * state.iterations());
}

// By the length of the list, then of the text, which comes last in the name.
void Sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMillisecond)->ArgNames({"", "terms"});
  for (const std::int64_t characters : {100'000, 1'000'000, 10'000'000}) {
    for (const std::int64_t terms : {1, 50, 1'000, 10'000}) benchmark->Args({characters, terms});
  }
}

void WorstSizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Unit(benchmark::kMillisecond)->ArgNames({"", "terms"})->Iterations(1);
  for (const std::int64_t characters : {100'000, 1'000'000}) {
    for (const std::int64_t terms : {1, 50, 1'000}) benchmark->Args({characters, terms});
  }
  benchmark->Args({100'000, 10'000})->Args({10'000'000, 50});
}

BENCHMARK(Phrases)->Name("Parse/Phrases")->Apply(Sizes);
BENCHMARK(NoHits)->Name("Parse/NoHits")->Apply(Sizes);
BENCHMARK(EveryBeginningOfOneWord)->Name("Parse/EveryBeginningOfOneWord")->Apply(WorstSizes);
BENCHMARK(PlainPass)
    ->Name("Parse/PlainPass")
    ->RangeMultiplier(10)
    ->Range(100'000, 10'000'000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench
