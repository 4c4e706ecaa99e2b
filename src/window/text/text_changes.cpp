#include "window/text/text_changes.h"

#include <algorithm>

namespace quill {

void TextChanges::Load() {
  *this = {};
  loaded = true;
}

void TextChanges::Replace(Position at, Position removed, Position inserted) {
  if (loaded) return;
  const Position end = at + removed;
  const Position growth = inserted - removed;
  for (Range& range : formats) {
    // A range moves with its characters; one that loses its end ends at the edit.
    if (range.begin >= end) {
      range.begin += growth;
    } else {
      range.begin = std::min(range.begin, at);
    }
    if (range.end >= end) {
      range.end += growth;
    } else {
      range.end = std::min(range.end, at);
    }
  }
  if (!edited) {
    edited = true;
    edit = {at, removed, inserted};
    return;
  }
  const Position spanEnd = edit.at + edit.inserted;
  const Position before = std::max<Position>(edit.at - at, 0);
  const Position behind = std::max<Position>(end - spanEnd, 0);
  edit.at -= before;
  edit.removed += before + behind;
  edit.inserted += before + behind + growth;
}

void TextChanges::Format(Range range) {
  if (!loaded) formats.push_back(range);
}

std::vector<Range> TextChanges::MergedFormats(Position length) const {
  std::vector<Range> sorted = formats;
  std::sort(sorted.begin(), sorted.end(),
            [](const Range& left, const Range& right) { return left.begin < right.begin; });
  std::vector<Range> merged;
  for (const Range& range : sorted) {
    const Range inside{std::min(range.begin, length), std::min(range.end, length)};
    if (!merged.empty() && inside.begin <= merged.back().end) {
      merged.back().end = std::max(merged.back().end, inside.end);
    } else if (inside.Length() > 0) {
      merged.push_back(inside);
    }
  }
  return merged;
}

}  // namespace quill
