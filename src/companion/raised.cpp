#include "companion/raised.h"

#include <algorithm>
#include <optional>

namespace quill::companion {
namespace {

std::optional<Kind> KindOf(Colour colour) {
  if (colour == RGB(0, 0, 255) || colour == RGB(128, 128, 255)) return Kind::kA;
  if (colour == RGB(255, 0, 0)) return Kind::kB;
  return std::nullopt;
}

}  // namespace

std::vector<Range> RaisedStretches(const Text& text) {
  std::vector<Range> stretches;
  for (const RaisedRun& run : text.raised) {
    if (!stretches.empty() && stretches.back().end == run.range.begin) {
      stretches.back().end = run.range.end;
    } else {
      stretches.push_back(run.range);
    }
  }
  return stretches;
}

std::vector<Range> MarkedStretches(const Text& text) {
  std::vector<Range> stretches;
  std::optional<Kind> last;
  for (const RaisedRun& run : text.raised) {
    const std::optional<Kind> kind = KindOf(run.colour);
    if (kind && kind == last && stretches.back().end == run.range.begin) {
      stretches.back().end = run.range.end;
    } else if (kind) {
      stretches.push_back(run.range);
    }
    last = kind;
  }
  return stretches;
}

bool LiesIn(const std::vector<Range>& stretches, Range range) {
  const auto behind =
      std::upper_bound(stretches.begin(), stretches.end(), range.begin,
                       [](Position at, const Range& stretch) { return at < stretch.begin; });
  return behind != stretches.begin() && range.end <= (behind - 1)->end;
}

bool HasColourOf(Kind kind, const Text& text, Range range) {
  auto run = std::partition_point(
      text.raised.begin(), text.raised.end(),
      [&](const RaisedRun& before) { return before.range.end <= range.begin; });
  for (; run != text.raised.end() && run->range.begin < range.end; ++run) {
    if (KindOf(run->colour) != kind) return false;
  }
  return true;
}

}  // namespace quill::companion
