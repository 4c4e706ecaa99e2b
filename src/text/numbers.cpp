#include "text/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace quill {
namespace {

bool IsDigit(char32_t c) { return c >= U'0' && c <= U'9'; }

}  // namespace

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
  // A lone sign or point reads as 0, and so does an empty text. The C library's locale is never
  // set.
  return std::strtod(number.c_str(), nullptr) + 0.0;
}

std::optional<double> NumberFromDigits(std::u32string_view text) {
  if (text.empty() || !std::all_of(text.begin(), text.end(), IsDigit)) return std::nullopt;
  return Val(text);
}

std::u32string DecimalText(double number) {
  std::array<char, 400> buffer{};
  char* const end = buffer.data() + buffer.size();
  const bool whole = std::floor(number) == number && std::abs(number) < 1e300;
  const auto written = whole ? std::to_chars(buffer.data(), end, number, std::chars_format::fixed)
                             : std::to_chars(buffer.data(), end, number);
  return {buffer.data(), written.ptr};
}

}  // namespace quill
