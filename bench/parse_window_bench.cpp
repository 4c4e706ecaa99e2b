// Parsing on the real window: searching texts of several lengths for all items of a list, and
// reading a dictionary as long as a list can be.
#include <algorithm>
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
  }

  void Use(std::int64_t characters) {
    if (plain_.Length() < characters || plain_.Length() > 2 * characters) {
      plain_ = *rtf::Read(GeneratedText(Kind::kProse, characters));
    }
  }
  // The text without marks, and an empty list.
  void Restart() {
    Form().RichTextBox1.SetDocument(plain_);
    Press("Clear_list");
  }
  // Reads these items as the text's dictionary.
  void Read(std::string dictionary) {
    Disk().content = std::move(dictionary);
    Press("Add_specific_parsing_list");
  }
  int Hits() {
    const Document& document = Form().RichTextBox1.Doc();
    int hits = 0;
    for (Position at = 1; at < document.Length(); ++at) {
      hits += static_cast<int>(document.At(at).bold && !document.At(at - 1).bold);
    }
    return hits;
  }

 private:
  Document plain_;
};

// Created at first use, and destroyed while the toolkit still runs.
std::unique_ptr<Parser> shownParser;

Parser& Shown() {
  if (!shownParser) shownParser = std::make_unique<Parser>();
  return *shownParser;
}

namespace {

constexpr const char* kWords[] = {"the",     "of",  "before",     "yesterday", "when",
                                  "evening", "she", "remembered", "had",       "year"};

// Pairs of words, all about equally frequent in a generated text, and terms that do not occur
// there. The last item is not searched for.
std::string Operators(int terms, int pairs) {
  std::string operators;
  for (int i = 0; i <= terms; ++i) {
    const std::string term =
        i < pairs ? std::string(kWords[i % 10]) + " " + kWords[i / 10] : "zzz " + std::to_string(i);
    operators += term + (i % 2 == 0 ? "\\    \\A< d >\r\n" : "\\    \\B< d >\r\n");
  }
  return operators;
}

// By the number of terms in the list, and how many of them occur.
void ParseAll(benchmark::State& state) {
  Parser& parser = Shown();
  parser.Use(state.range(0));
  const std::string operators =
      Operators(static_cast<int>(state.range(1)), static_cast<int>(state.range(2)));
  const auto restart = [&] {
    parser.Restart();
    parser.Read(operators);
  };
  FromRestToRest(state, restart, [&] { parser.Press("Parse_1"); });
  const int hits = parser.Hits();
  if (hits < 10 * state.range(2)) return state.SkipWithError("too few hits");
  state.counters["hits"] = hits;
}

// Up to the limit of a list box, in random order.
void ReadDictionary(benchmark::State& state) {
  Parser& parser = Shown();
  const auto items = static_cast<int>(state.range(0));
  std::string dictionary;
  for (int i = 0; i < items; ++i) {
    dictionary += "term " + std::to_string(i * 7919LL % items) + "\\   \\A< a definition >\r\n";
  }
  FromRestToRest(
      state, [&] { parser.Press("Clear_list"); }, [&] { parser.Read(dictionary); });
  if (parser.Form().Parse_listbox.ListCount() != items) state.SkipWithError("not read");
}

void Times(benchmark::internal::Benchmark* benchmark) {
  benchmark->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(ParseAll)
    ->Name("ParseInWindow/All")
    ->Args({100'000, 50, 16})
    ->Args({4'400'000, 50, 16})
    ->Args({4'400'000, 1'000, 82})
    ->ArgNames({"", "terms", "occur"})
    ->Apply(Times);
BENCHMARK(ReadDictionary)
    ->Name("ParseInWindow/ReadDictionary")
    ->Arg(300)
    ->Arg(30'000)
    ->Apply(Times);

}  // namespace
}  // namespace quill::bench

int main(int argc, char** argv) {
  return quill::bench::RunWindowBenchmarks(argc, argv, [] { quill::bench::shownParser.reset(); });
}
