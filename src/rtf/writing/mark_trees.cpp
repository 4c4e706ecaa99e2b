#include "rtf/writing/mark_trees.h"

namespace quill::rtf {

// None of its characters stands in front of `from`. One typed at an opening brace stands in front
// of the group, one typed at a closing brace inside.
MarkTree MarkTrees::TreeAt(std::size_t group, std::size_t from) const {
  const Offset close = groups_[group].close;
  const std::size_t begin = origins_.FirstBehind(groups_[group].open, from);
  MarkTree tree{group, group + 1, {begin, origins_.FirstBehind(close, begin)}};
  while (tree.end < groups_.size() && groups_[tree.end].open < close) ++tree.end;
  return tree;
}

}  // namespace quill::rtf
