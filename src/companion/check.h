// Inconsistencies between a text, its marks and its tags.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "companion/tagged_text.h"

namespace quill::companion {

struct Finding {
  std::size_t line = 0;  // 0 if it concerns no line
  const char* code = "";
  std::string id = {};
  std::optional<Range> place = {};  // of the tag, reference or raised word concerned
  std::string term = {};
  std::optional<Range> found = {};  // where it is now
  std::string message = {};
};

// In the order of lines.
std::vector<Finding> Check(const Text& text, const TagList& list);

}  // namespace quill::companion
