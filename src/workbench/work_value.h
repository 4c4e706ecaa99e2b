// Dynamically typed values of the record of working state.
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

}  // namespace quill
