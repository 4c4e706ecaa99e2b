#include "companion/csv.h"

#include "text/unicode.h"

namespace quill::companion {
namespace {

void AppendField(std::string& table, std::string_view field) {
  if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
    table += field;
    return;
  }
  table += '"';
  for (const char c : field) table.append(c == '"' ? 2 : 1, c);
  table += '"';
}

}  // namespace

void AppendCsvRow(std::string& table, const std::vector<std::string>& fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) table += ',';
    AppendField(table, fields[i]);
  }
  table += "\r\n";
}

std::string PathText(std::string_view path) { return ToUtf8(FromUtf8(path)); }

}  // namespace quill::companion
