// Parsing on the real window: from a click until what came of it is painted, in a novel of 3.2
// million characters with some 16,000 hits, and reading a dictionary as long as a list can be.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <utility>

#include "generated_text.h"
#include "rtf/reader.h"
#include "window_bench.h"

namespace quill::bench {

class Parser : public ShownProgram {
 public:
  Parser() {
    Form().PreFrame.Visible = true;
    Form().Frame5.Enabled = true;
    ShowWindow();
    Restart();
  }

  // The text without marks, and an empty list.
  void Restart() {
    Form().RichTextBox1.SetDocument(plain_);
    Press("Clear_list");
  }
  // Reads that many items as the text's dictionary.
  void Read(std::string dictionary) {
    Disk().content = std::move(dictionary);
    Press("Add_specific_parsing_list");
  }
  int Hits() {
    const std::u32string& text = Form().RichTextBox1.Text();
    const Document& document = Form().RichTextBox1.Doc();
    int hits = 0;
    for (Position at = 1; at < static_cast<Position>(text.size()); ++at) {
      hits += static_cast<int>(document.At(at).bold && !document.At(at - 1).bold);
    }
    return hits;
  }

 private:
  const Document plain_ = *rtf::Read(GeneratedText(Kind::kProse, 3'200'000));
};

// Made at the first use, and taken down while the toolkit still runs.
std::unique_ptr<Parser> shownParser;

Parser& Shown() {
  if (!shownParser) shownParser = std::make_unique<Parser>();
  return *shownParser;
}

namespace {

// Some 16,000 hits in all; the last item is not searched for.
constexpr const char* kOperators =
    "the year\\    \\A< d >\r\nof the\\    \\B< d >\r\nbefore he\\    \\A< d >\r\n"
    "yesterday she\\    \\B< d >\r\nwhen he\\    \\A< d >\r\nevening the\\    \\B< d >\r\n"
    "she said\\    \\A< d >\r\nremembered a\\    \\B< d >\r\nhad once\\    \\A< d >\r\n"
    "year of\\    \\B< d >\r\nalways at\\    \\A< d >\r\na moment\\    \\B< d >\r\n"
    "then he\\    \\A< d >\r\nhouse had\\    \\B< d >\r\nwaiting until\\    \\A< d >\r\n"
    "afternoon when\\    \\B< d >\r\nonce she\\    \\A< d >\r\nuntil then\\    \\B< d >\r\n"
    "zzz\\    \\B< d >\r\n";

void ParseAll(benchmark::State& state) {
  Parser& parser = Shown();
  for (auto _ : state) {
    state.PauseTiming();
    parser.Restart();
    parser.Read(kOperators);
    state.ResumeTiming();
    parser.Press("Parse_1");
  }
  const int hits = parser.Hits();
  if (hits < 14'000) return state.SkipWithError("too few hits");
  state.counters["hits"] = hits;
}

// Up to the limit of a list box, in no order.
void ReadDictionary(benchmark::State& state) {
  Parser& parser = Shown();
  const auto items = static_cast<int>(state.range(0));
  std::string dictionary;
  for (int i = 0; i < items; ++i) {
    dictionary += "term " + std::to_string(i * 7919LL % items) + "\\   \\A< a definition >\r\n";
  }
  for (auto _ : state) {
    state.PauseTiming();
    parser.Press("Clear_list");
    state.ResumeTiming();
    parser.Read(dictionary);
    if (parser.Form().Parse_listbox.ListCount() != items) return state.SkipWithError("not read");
  }
}

BENCHMARK(ParseAll)->Name("ParseInWindow/All")->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadDictionary)
    ->Name("ParseInWindow/ReadDictionary")
    ->Arg(300)
    ->Arg(30'000)
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  return quill::bench::RunWindowBenchmarks(argc, argv, [] { quill::bench::shownParser.reset(); });
}
