// How a fuzz target reports that a property does not hold.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

namespace quill::fuzz {

// Ends the program, with the sentence, unless `holds`.
inline void Require(bool holds, const std::string& sentence) {
  if (holds) return;
  std::fprintf(stderr, "PROPERTY: %s\n", sentence.c_str());
  std::abort();
}

}  // namespace quill::fuzz
