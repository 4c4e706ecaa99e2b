#include "rtf/writing/mark_trees.h"

namespace quill::rtf {

// Requires that none of its characters is before `from`. A character typed at the opening brace is
// outside of the group, one typed at the closing brace inside.
MarkTree MarkTrees::TreeAt(std::size_t group, std::size_t from) const {
  const Offset close = groups_[group].close;
  const std::size_t begin = origins_.FirstBehind(groups_[group].open, from);
  MarkTree tree{group, group + 1, {begin, origins_.FirstBehind(close, begin)}};
  while (tree.end < groups_.size() && groups_[tree.end].open < close) ++tree.end;
  return tree;
}

}  // namespace quill::rtf
