// Text files of lines: tag lists and dictionaries.
//
// Written as UTF-8 with CR LF. Read with any line end, with or without a byte order mark; a line
// that is not valid UTF-8 is read as Windows-1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill {

// The lines of a file, as views into its bytes, without line ends or byte order mark. A trailing
// line end does not start another line.
std::vector<std::string_view> SplitLines(std::string_view bytes);

// The same lines, decoded.
std::vector<std::u32string> DecodeLines(std::string_view bytes);

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// What must precede the first line of a file, given that line's bytes: a byte order mark at the
// start of a file is not part of a line, so a line that begins with one needs another before it.
std::string_view MarkInFrontOf(std::string_view firstLine);

// Encodes a line, without its line end. A paragraph end inside it becomes CR LF and makes it two
// lines of the file.
std::string EncodeLine(std::u32string_view line);

}  // namespace quill
