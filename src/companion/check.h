// What does not fit between a text, its marks and its tags.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "companion/tagged_text.h"

namespace quill::companion {

struct Finding {
  std::size_t line = 0;  // 0 for what no line speaks of
  const char* code = "";
  std::string id = {};
  std::optional<Range> place = {};  // what is spoken of: a tag, a reference or a raised word
  std::string term = {};
  std::optional<Range> found = {};  // where it stands now
  std::string message = {};
};

// In the order of lines.
std::vector<Finding> Check(const Text& text, const TagList& list);

}  // namespace quill::companion
