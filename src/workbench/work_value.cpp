#include "workbench/work_value.h"

#include "text/numbers.h"
#include "workbench/failure.h"

namespace quill {
double WorkValue::Number() const {
  if (IsEmpty()) return 0;
  if (IsNumber()) return std::get<double>(value_);
  const auto number = NumberFromDigits(std::get<std::u32string>(value_));
  if (!number) throw StatementFailed("a text with other characters than digits is no number");
  return *number;
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

}  // namespace quill
