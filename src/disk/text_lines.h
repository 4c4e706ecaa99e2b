// Text files of lines: tag lists and dictionaries.
//
// They are written as UTF-8 with CR LF and read with any line end, with or without a byte order
// mark, each line as UTF-8 or else as Windows-1252.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quill {

// The lines of a file as views into its bytes, without line ends and byte order mark. A line end at
// the end of the file begins no further line.
std::vector<std::string_view> SplitLines(std::string_view bytes);

// The same lines, decoded.
std::vector<std::u32string> DecodeLines(std::string_view bytes);

inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// What has to stand in front of the first line of a file, given its bytes: a file's first byte
// order mark is no part of a line, and so a line that begins with one needs another before it.
std::string_view MarkInFrontOf(std::string_view firstLine);

// The bytes of one line, without its line end. A paragraph end inside it becomes CR LF, so that the
// line is two lines of the file.
std::string EncodeLine(std::u32string_view line);

}  // namespace quill
