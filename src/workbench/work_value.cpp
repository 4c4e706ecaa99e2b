#include "workbench/work_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "workbench/failure.h"

namespace quill {
namespace {

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

std::u32string Widen(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

}  // namespace

double WorkValue::Number() const {
  if (IsEmpty()) return 0;
  if (IsNumber()) return std::get<double>(value_);
  return NumberFromDigits(std::get<std::u32string>(value_));
}

std::u32string WorkValue::Text() const {
  if (IsEmpty()) return {};
  if (IsNumber()) return DecimalText(std::get<double>(value_));
  return std::get<std::u32string>(value_);
}

bool operator==(const WorkValue& value, std::u32string_view literal) {
  return value.Text().compare(literal) == 0;
}

WorkValue operator+(const WorkValue& left, double right) { return left.Number() + right; }

double Len(const WorkValue& value) { return static_cast<double>(value.Text().size()); }

double Val(std::u32string_view text) {
  std::string number;
  bool point = false;
  for (const char32_t c : text) {
    if (c == U' ' || c == U'\t' || c == U'\n' || c == U'\r') continue;
    const bool sign = number.empty() && (c == U'-' || c == U'+');
    const bool firstPoint = c == U'.' && !point;
    if (!sign && !firstPoint && !IsDigit(c)) break;
    point = point || firstPoint;
    number += static_cast<char>(c);
  }
  // A sign or a point alone reads as 0, as does nothing; the locale of the C library is never set.
  return std::strtod(number.c_str(), nullptr) + 0.0;
}

std::u32string DecimalText(double number) {
  std::array<char, 400> buffer{};
  char* const end = buffer.data() + buffer.size();
  const bool whole = std::floor(number) == number && std::abs(number) < 1e300;
  const auto written = whole ? std::to_chars(buffer.data(), end, number, std::chars_format::fixed)
                             : std::to_chars(buffer.data(), end, number);
  return Widen({buffer.data(), written.ptr});
}

double NumberFromDigits(std::u32string_view text) {
  if (text.empty()) throw StatementFailed("an empty text is no number");
  for (const char32_t c : text) {
    if (!IsDigit(c)) throw StatementFailed("a text with other characters than digits is no number");
  }
  return Val(text);
}

}  // namespace quill
