// Dynamically typed values of the record of working state, and numbers in texts.
#pragma once

#include <string>
#include <string_view>
#include <variant>

namespace quill {

// Empty, a number or a string.
class WorkValue {
 public:
  WorkValue() = default;
  WorkValue(double number) : value_(number) {}
  WorkValue(int number) : value_(static_cast<double>(number)) {}
  WorkValue(long number) : value_(static_cast<double>(number)) {}
  WorkValue(unsigned number) : value_(static_cast<double>(number)) {}
  WorkValue(std::u32string string) : value_(std::move(string)) {}
  WorkValue(const char32_t* string) : value_(std::u32string(string)) {}

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsNumber() const { return std::holds_alternative<double>(value_); }
  bool IsString() const { return std::holds_alternative<std::u32string>(value_); }

  // The number; 0 for Empty; a string fails unless it is decimal digits only.
  double Number() const;
  // The string; a number in its decimal form; Empty as "".
  std::u32string Text() const;

 private:
  std::variant<std::monostate, double, std::u32string> value_;
};

// Empty equals "" and nothing else; a number is compared on its decimal form.
bool operator==(const WorkValue& value, std::u32string_view literal);
// Empty counts as 0.
WorkValue operator+(const WorkValue& left, double right);
// In characters; 0 for Empty.
double Len(const WorkValue& value);

// Reads the number at the head of a text: blanks, tabs and line ends are dropped wherever they
// stand, then come an optional sign, ASCII digits and at most one decimal point. 0 without a
// number; no exponents.
double Val(std::u32string_view text);

// A number as text: whole numbers without a decimal point, others in their shortest form.
std::u32string DecimalText(double number);

// A text that is decimal digits only, as a number. Anything else fails (StatementFailed).
double NumberFromDigits(std::u32string_view text);

}  // namespace quill
