// How a failed test prints values of the window model.
#pragma once

#include <gtest/gtest.h>

#include <ostream>

#include "workbench/property.h"
#include "workbench/work_value.h"

namespace quill {

template <class T>
void PrintTo(const Property<T>& property, std::ostream* out) {
  *out << testing::PrintToString(property.Get());
}

template <class T>
void PrintTo(const WorkValue<T>& value, std::ostream* out) {
  *out << (value.IsEmpty() ? "(empty)" : testing::PrintToString(value.Get()));
}

}  // namespace quill
