// The figures of all pairs of readers, and of all readers together, as a table to read or as CSV.

#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

#include "companion/agreement.h"
#include "companion/command.h"
#include "companion/csv.h"
#include "companion/output.h"
#include "companion/readings.h"

namespace quill::companion {
namespace {

constexpr std::array<const char*, kJudgedFields> kFieldNames = {"class", "operator", "mode", "type",
                                                                "granularity"};
constexpr int kCsvDigits = 12;  // behind the point
constexpr int kTableDigits = 3;

// One figure and the number of cases that it rests on.
struct Figure {
  std::string readerA;
  std::string readerB;
  std::string field;
  std::string measure;
  std::optional<double> value;
  std::int64_t n = 0;
  bool isCount = false;
};

std::string Written(const Figure& figure, int digits) {
  if (figure.isCount) return std::to_string(figure.n);
  if (!figure.value) return "NA";
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), *figure.value,
                                 std::chars_format::fixed, digits);
  return {buffer.data(), end.ptr};
}

class Figures {
 public:
  void Of(std::string readerA, std::string readerB, const char* field) {
    readerA_ = std::move(readerA);
    readerB_ = std::move(readerB);
    field_ = field;
  }
  void Count(const char* measure, std::int64_t count) { Push(measure, {}, count, true); }
  void Value(const char* measure, std::optional<double> value, std::int64_t n) {
    Push(measure, value, n, false);
  }
  const std::vector<Figure>& All() const { return figures_; }

 private:
  void Push(const char* measure, std::optional<double> value, std::int64_t n, bool isCount) {
    figures_.push_back({readerA_, readerB_, field_, measure, value, n, isCount});
  }

  std::string readerA_;
  std::string readerB_;
  const char* field_ = "";
  std::vector<Figure> figures_;
};

using Named = std::pair<const std::string, Reading>;

void ComparePair(const Named& a, const Named& b, bool overlapping, Figures& figures) {
  const Matches matches =
      overlapping ? MatchOverlapping(a.second, b.second) : MatchEqual(a.second, b.second);
  const SpanAgreement spans{static_cast<std::int64_t>(a.second.size()),
                            static_cast<std::int64_t>(b.second.size()),
                            static_cast<std::int64_t>(matches.size())};
  figures.Of(a.first, b.first, "span");
  figures.Count("spans_a", spans.spansA);
  figures.Count("spans_b", spans.spansB);
  figures.Count("matched", spans.matched);
  figures.Value("precision", spans.Precision(), spans.spansB);
  figures.Value("recall", spans.Recall(), spans.spansA);
  figures.Value("f1", spans.F1(), spans.spansA + spans.spansB);
  for (std::size_t field = 0; field < kJudgedFields; ++field) {
    const LabelAgreement labels = CompareLabels(a.second, b.second, matches, field);
    figures.Of(a.first, b.first, kFieldNames[field]);
    figures.Count("n", labels.compared);
    figures.Value("agreement", labels.Agreement(), labels.compared);
    figures.Value("kappa", labels.kappa, labels.compared);
  }
  const ReferenceAgreement references = CompareReferences(a.second, b.second, matches);
  figures.Of(a.first, b.first, "reference");
  figures.Count("n", references.compared);
  figures.Value("agreement", references.Agreement(), references.compared);
}

void CompareAll(const std::vector<Reading>& readings, Figures& figures) {
  for (std::size_t field = 0; field < kJudgedFields; ++field) {
    const Reliability reliability = MeasureReliability(readings, field);
    figures.Of("*", "*", kFieldNames[field]);
    figures.Value("alpha", reliability.alpha, reliability.units);
  }
}

std::string CsvOf(const std::vector<Figure>& figures) {
  std::string table;
  AppendCsvRow(table, {"reader_a", "reader_b", "field", "measure", "value", "n"});
  for (const Figure& figure : figures) {
    AppendCsvRow(table, {figure.readerA, figure.readerB, figure.field, figure.measure,
                         Written(figure, kCsvDigits), std::to_string(figure.n)});
  }
  return table;
}

// A block for each pair and one for all readers; in a block a line for each field.
std::string TableOf(const std::vector<Figure>& figures) {
  constexpr std::size_t kFieldWidth = 14;
  constexpr std::size_t kFigureWidth = 19;
  std::string table;
  const Figure* before = nullptr;
  for (const Figure& figure : figures) {
    const bool newPair =
        before == nullptr || before->readerA != figure.readerA || before->readerB != figure.readerB;
    const bool newLine = newPair || before->field != figure.field;
    if (newLine && before != nullptr) {
      table.erase(table.find_last_not_of(' ') + 1);
      table += '\n';
    }
    if (newPair) {
      if (before != nullptr) table += '\n';
      table += figure.readerA == "*" ? "all readers\n"
                                     : figure.readerA + " (a) and " + figure.readerB + " (b)\n";
    }
    if (newLine) {
      std::string name = "  " + figure.field;
      name.resize(kFieldWidth + 2, ' ');
      table += name;
    }
    std::string cell = figure.measure + " " + Written(figure, kTableDigits);
    if (figure.measure == "alpha") cell += "   n " + std::to_string(figure.n);
    cell.resize(std::max(cell.size() + 1, kFigureWidth), ' ');
    table += cell;
    before = &figure;
  }
  table.erase(table.find_last_not_of(' ') + 1);
  return table + '\n';
}

}  // namespace

void RunAgree(const Options& options, Console& console) {
  Output output(options, console);
  const std::map<std::string, Reading> readings = ReadingsOf(options, console);
  Figures figures;
  for (auto a = readings.begin(); a != readings.end(); ++a) {
    for (auto b = std::next(a); b != readings.end(); ++b) {
      ComparePair(*a, *b, options.match == "overlap", figures);
    }
  }
  std::vector<Reading> all;
  all.reserve(readings.size());
  for (const auto& [name, reading] : readings) all.push_back(reading);
  CompareAll(all, figures);
  output.Write(options.csv ? CsvOf(figures.All()) : TableOf(figures.All()));
  output.Finish();
}

}  // namespace quill::companion
