// All figures of a comparison: of every pair of readers, and of all readers together.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "companion/agreement.h"

namespace quill::companion {

// One figure and the number of cases that it rests on. Both readers are "*" if it is about all.
struct Figure {
  std::string readerA;
  std::string readerB;
  std::string field;
  std::string measure;
  std::optional<double> value;  // empty if not defined, and for a count
  std::int64_t n = 0;
  bool isCount = false;
};

enum class Matching { kEqual, kOverlapping };

// Ordered by pairs (in the order of names), then fields, then measures.
std::vector<Figure> CompareReaders(const std::map<std::string, Reading>& readings,
                                   Matching matching);

}  // namespace quill::companion
