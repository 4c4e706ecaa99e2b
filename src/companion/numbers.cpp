#include "companion/numbers.h"

#include <array>
#include <charconv>

namespace quill::companion {

std::string Decimal(double number) {
  std::array<char, 64> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  return {buffer.data(), written.ptr};
}

}  // namespace quill::companion
