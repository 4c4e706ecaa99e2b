// The figures of results as text, the same in every locale.
#pragma once

#include <string>

namespace quill::companion {

// The shortest decimal form that reads back as the same number.
std::string Decimal(double number);

}  // namespace quill::companion
