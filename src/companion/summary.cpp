#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "companion/command.h"
#include "companion/csv.h"
#include "companion/numbers.h"
#include "companion/output.h"
#include "companion/tagged_text.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

struct Counts {
  Position characters = 0;
  Position tags = 0;
  Position references = 0;
  std::set<std::u32string, std::less<>> users;
  std::set<std::u32string, std::less<>> sessions;
  std::array<std::map<std::u32string, Position, std::less<>>, kEnumeratedFields.size()> values;
};

void CountName(std::set<std::u32string, std::less<>>& names, std::u32string_view name) {
  if (!name.empty() && !names.contains(name)) names.emplace(name);
}

void CountTag(Counts& counts, const Tag& tag) {
  ++counts.tags;
  if (ReferenceOf(tag)) ++counts.references;
  CountName(counts.users, Given(tag, TagField::kUserId));
  CountName(counts.sessions, Given(tag, TagField::kSessionId));
  for (std::size_t i = 0; i < kEnumeratedFields.size(); ++i) {
    ++counts.values[i][std::u32string(Given(tag, kEnumeratedFields[i].field))];
  }
}

Counts CountsOf(const TaggedText& text) {
  Counts counts;
  counts.characters = text.text.Length();
  for (const TagList& list : text.lists) {
    for (const Tag& tag : list.tags) CountTag(counts, tag);
  }
  return counts;
}

void Add(Counts& all, const Counts& one) {
  all.characters += one.characters;
  all.tags += one.tags;
  all.references += one.references;
  all.users.insert(one.users.begin(), one.users.end());
  all.sessions.insert(one.sessions.begin(), one.sessions.end());
  for (std::size_t i = 0; i < kEnumeratedFields.size(); ++i) {
    for (const auto& [value, count] : one.values[i]) all.values[i][value] += count;
  }
}

// Undefined for an empty text.
std::string Density(const Counts& counts) {
  if (counts.characters == 0) return "NA";
  return Decimal(10000.0 * static_cast<double>(counts.tags) /
                 static_cast<double>(counts.characters));
}

struct Row {
  std::string field;
  std::string value;
  std::string count;
};

std::vector<Row> RowsOf(const Counts& counts) {
  std::vector<Row> rows = {{"characters", "", std::to_string(counts.characters)},
                           {"tags", "", std::to_string(counts.tags)},
                           {"tags_per_10000_characters", "", Density(counts)},
                           {"users", "", std::to_string(counts.users.size())},
                           {"sessions", "", std::to_string(counts.sessions.size())}};
  for (std::size_t i = 0; i < kEnumeratedFields.size(); ++i) {
    for (const auto& [value, count] : counts.values[i]) {
      rows.push_back({kEnumeratedFields[i].name, ToUtf8(value), std::to_string(count)});
    }
  }
  rows.push_back({"references", "", std::to_string(counts.references)});
  return rows;
}

std::string CsvOf(const std::string& file, const std::vector<Row>& rows) {
  std::string table;
  for (const Row& row : rows) AppendCsvRow(table, {file, row.field, row.value, row.count});
  return table;
}

bool IsEnumerated(std::string_view name) {
  return std::any_of(kEnumeratedFields.begin(), kEnumeratedFields.end(),
                     [&](const EnumeratedField& field) { return field.name == name; });
}

// Two columns under the name of the file: what was counted, and how many.
std::string TableOf(const std::string& file, const std::vector<Row>& rows) {
  constexpr std::size_t kFirstColumn = 28;
  std::string table = file + "\n";
  for (const Row& row : rows) {
    std::string label = "  " + row.field;
    if (row.value.empty() && IsEnumerated(row.field)) label += " not given";
    if (!row.value.empty()) label += " " + row.value;
    if (row.field == "tags_per_10000_characters") label = "  tags per 10,000 characters";
    label.resize(std::max(label.size() + 2, kFirstColumn + 4), ' ');
    table += label + row.count + "\n";
  }
  return table;
}

}  // namespace

void RunSummary(const Options& options, Console& console) {
  Output output(options, console);
  const auto write = [&](const std::string& file, const Counts& counts) {
    const std::vector<Row> rows = RowsOf(counts);
    output.Write(options.csv ? CsvOf(file, rows) : TableOf(file, rows));
  };
  if (options.csv) output.Write("file,field,value,count\r\n");
  Counts all;
  ForEachSoundText(options, console, [&](const TaggedText& text) {
    const Counts counts = CountsOf(text);
    write(PathText(text.path), counts);
    Add(all, counts);
  });
  write("*", all);
  output.Finish();
}

}  // namespace quill::companion
