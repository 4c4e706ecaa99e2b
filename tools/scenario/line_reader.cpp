#include "scenario/line_reader.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "text/unicode.h"

namespace quill::scenario {
namespace {

constexpr std::string_view kBlanks = " \t";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char Unescaped(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'r':
      return '\r';
    default:
      throw ScenarioError(R"(a backslash in a text stands before ", \, n, t or r)");
  }
}

}  // namespace

void LineReader::SkipBlanks() {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(kBlanks), rest_.size()));
}

bool LineReader::AtEnd() {
  SkipBlanks();
  return rest_.empty();
}

bool LineReader::AtText() { return !AtEnd() && rest_.front() == '"'; }

std::string_view LineReader::Word(std::string_view what) {
  if (AtEnd()) throw ScenarioError(std::string(what) + " is missing");
  if (AtText()) throw ScenarioError(std::string(what) + " stands without quotes");
  const std::string_view word = rest_.substr(0, rest_.find_first_of(kBlanks));
  rest_.remove_prefix(word.size());
  return word;
}

std::u32string LineReader::Text(std::string_view what) {
  if (!AtText()) throw ScenarioError(std::string(what) + " in double quotes is missing");
  std::string text;
  for (std::size_t i = 1; i < rest_.size(); ++i) {
    if (rest_[i] == '"') {
      rest_.remove_prefix(i + 1);
      if (!rest_.empty() && kBlanks.find(rest_.front()) == std::string_view::npos) {
        throw ScenarioError("a blank is missing behind the closing quote");
      }
      return FromUtf8(text);
    }
    if (rest_[i] != '\\') {
      text += rest_[i];
    } else if (++i < rest_.size()) {
      text += Unescaped(rest_[i]);
    }
  }
  throw ScenarioError(std::string(what) + " lacks its closing quote");
}

std::int64_t LineReader::Number(std::string_view what) {
  const std::string_view word = Word(what);
  if (!std::all_of(word.begin(), word.end(), IsDigit)) {
    throw ScenarioError(std::string(what) + " is decimal digits, not " + std::string(word));
  }
  std::int64_t number = 0;
  const auto read = std::from_chars(word.data(), word.data() + word.size(), number);
  return read.ec == std::errc() ? number : std::numeric_limits<std::int64_t>::max();
}

std::string_view LineReader::Rest(std::string_view what) {
  if (AtEnd()) throw ScenarioError(std::string(what) + " is missing");
  return std::exchange(rest_, {});
}

void LineReader::End() {
  if (!AtEnd()) throw ScenarioError("the step has words too many: " + std::string(rest_));
}

}  // namespace quill::scenario
