// Tables of comma-separated values: RFC 4180, UTF-8 without a byte order mark.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill::companion {

// Appends one row and its line end, CR LF. Fields are UTF-8.
void AppendCsvRow(std::string& table, const std::vector<std::string>& fields);

// The bytes of a path as UTF-8, for a field.
std::string PathText(std::string_view path);

}  // namespace quill::companion
