// The words that the benchmarks mark.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::bench {

// Every second word of a text, in order; words are separated by blanks.
inline std::vector<Range> EverySecondWord(std::u32string_view text) {
  std::vector<Range> words;
  bool wanted = false;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = std::min(text.find(U' ', begin), text.size());
    if (wanted) words.push_back({static_cast<Position>(begin), static_cast<Position>(end)});
    wanted = !wanted;
    begin = end + 1;
  }
  return words;
}

}  // namespace quill::bench
