// The figures of a comparison, as a readable table or as CSV.

#include <array>
#include <charconv>
#include <string>
#include <vector>

#include "companion/agreement_figures.h"
#include "companion/command.h"
#include "companion/csv.h"
#include "companion/output.h"
#include "companion/readings.h"

namespace quill::companion {
namespace {

constexpr int kCsvDigits = 12;  // after the decimal point
constexpr int kTableDigits = 3;

std::string Written(const Figure& figure, int digits) {
  if (figure.isCount) return std::to_string(figure.n);
  if (!figure.value) return "NA";
  std::array<char, 64> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), *figure.value,
                                 std::chars_format::fixed, digits);
  return {buffer.data(), end.ptr};
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

// One block for each pair of readers and one for all of them; in each, one line per field.
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
  const std::vector<Figure> figures =
      CompareReaders(ReadingsOf(options, console),
                     options.match == "overlap" ? Matching::kOverlapping : Matching::kEqual);
  output.Write(options.csv ? CsvOf(figures) : TableOf(figures));
  output.Finish();
}

}  // namespace quill::companion
