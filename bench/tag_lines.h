// Tag lines of usual length, for the benchmarks.
#pragma once

#include <string>

#include "tags/tag_record.h"
#include "text/numbers.h"

namespace quill::bench {

// The word of line i is at 10 i + 1.
inline constexpr int kSpacing = 10;

inline std::u32string TagLine(int i) {
  const std::u32string number = DecimalText(i);
  const std::u32string end = DecimalText(kSpacing * i + 6);
  return ComposeTag(TagFields{number, DecimalText(kSpacing * i + 1), end, U"word " + number,
                              U"Session-ID", U"User-ID", U"lexematic", U"a_operator", U"relative",
                              U"before", U"year ", U"Value ?", U"the wedding", U"880", U"890"});
}

}  // namespace quill::bench
