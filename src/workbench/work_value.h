// A value of the record of working state: empty until it is first written.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "text/numbers.h"

namespace quill {

// Reads as 0 or "" while it is empty.
template <class T>
class WorkValue {
 public:
  WorkValue() = default;
  WorkValue(T value) : value_(std::move(value)) {}
  WorkValue& operator=(T value) {
    value_ = std::move(value);
    return *this;
  }

  bool IsEmpty() const { return !value_; }
  const T& Get() const {
    static const T kNothing{};
    return value_ ? *value_ : kNothing;
  }
  operator const T&() const { return Get(); }
  friend bool operator==(const WorkValue& value, const T& other) { return value.Get() == other; }

 private:
  std::optional<T> value_;
};

// In decimal form; "" if empty.
inline std::u32string TextOf(const WorkValue<double>& number) {
  return number.IsEmpty() ? std::u32string() : DecimalText(number);
}

}  // namespace quill
