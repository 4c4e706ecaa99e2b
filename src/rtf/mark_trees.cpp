#include "rtf/mark_trees.h"

namespace quill::rtf {

// It is looked for in steps that double, as it is near where searches go on from each other.
std::size_t FirstBehind(const std::vector<Origin>& origins, Offset offset, std::size_t from) {
  if (from == origins.size() || origins[from].begin > offset) return from;
  std::size_t step = 1;
  while (from + step < origins.size() && origins[from + step].begin <= offset) step *= 2;
  const auto first = origins.begin() + static_cast<std::ptrdiff_t>(from + step / 2);
  const auto last =
      origins.begin() + static_cast<std::ptrdiff_t>(std::min(from + step, origins.size()));
  const auto found = std::upper_bound(
      first, last, offset, [](Offset at, const Origin& origin) { return at < origin.begin; });
  return static_cast<std::size_t>(found - origins.begin());
}

// None of its characters stands in front of `from`. One typed at an opening brace stands in front
// of the group, one typed at a closing brace inside.
MarkTree MarkTrees::TreeAt(std::size_t group, std::size_t from) const {
  const Offset close = groups_[group].close;
  const std::size_t begin = FirstBehind(origins_, groups_[group].open, from);
  MarkTree tree{group, group + 1, {begin, FirstBehind(origins_, close, begin)}};
  while (tree.end < groups_.size() && groups_[tree.end].open < close) ++tree.end;
  return tree;
}

}  // namespace quill::rtf
