// Numbers in texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

// Reads the number at the head of a text: blanks, tabs and line ends are dropped wherever they
// stand, then come an optional sign, ASCII digits and at most one decimal point. 0 without a
// number; no exponents.
double Val(std::u32string_view text);

// Nothing unless the text is one or more ASCII digits and nothing else.
std::optional<double> NumberFromDigits(std::u32string_view text);

// Whole numbers without a decimal point, others in their shortest form.
std::u32string DecimalText(double number);

}  // namespace quill
