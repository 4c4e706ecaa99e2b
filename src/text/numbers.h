// Numbers in texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quill {

// The number at the start of a text, or 0: an optional sign, ASCII digits and at most one decimal
// point, no exponent. Blanks, tabs and line ends are ignored wherever they are.
double Val(std::u32string_view text);

// The number, if the text consists of one or more ASCII digits and nothing else.
std::optional<double> NumberFromDigits(std::u32string_view text);

// Whole numbers without a decimal point, others in their shortest form.
std::u32string DecimalText(double number);

}  // namespace quill
