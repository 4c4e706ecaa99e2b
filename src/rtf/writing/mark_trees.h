// The mark groups of a file with those nested in them, and which characters they hold.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "text/document.h"

namespace quill::rtf {

// A range of character indices.
struct Span {
  std::size_t begin = 0;
  std::size_t end = 0;
};

// A group and all groups nested in it: a range of the source's list.
struct MarkTree {
  std::size_t first = 0;
  std::size_t end = 0;
  Span inside;  // its characters
};

// The document must outlive it.
class MarkTrees {
 public:
  explicit MarkTrees(const Document& document)
      : groups_(document.GetSource().groups), origins_(document.Origins()) {}

  // The outermost groups that hold a wanted character, in order.
  template <class Wanted>
  std::vector<MarkTree> Holding(Wanted wanted) const;

  // Visits, in file order, the braces of a tree's groups (Open and Close, with the group's index)
  // and the characters between them (Character, with its index and that of the innermost group).
  template <class Visitor>
  void Walk(const MarkTree& tree, Visitor& visitor) const;

 private:
  MarkTree TreeAt(std::size_t group, std::size_t from) const;

  const std::vector<MarkGroup>& groups_;
  const OriginList& origins_;
};

template <class Wanted>
std::vector<MarkTree> MarkTrees::Holding(Wanted wanted) const {
  std::vector<MarkTree> found;
  found.reserve(groups_.size());
  MarkTree tree;
  for (std::size_t at = 0; at < groups_.size(); at = tree.end) {
    tree = TreeAt(at, tree.inside.end);
    std::size_t character = tree.inside.begin;
    while (character < tree.inside.end && !wanted(character)) ++character;
    if (character < tree.inside.end) found.push_back(tree);
  }
  return found;
}

template <class Visitor>
void MarkTrees::Walk(const MarkTree& tree, Visitor& visitor) const {
  std::size_t character = tree.inside.begin;
  std::size_t next = tree.first + 1;
  std::vector<std::size_t> open = {tree.first};
  visitor.Open(tree.first);
  while (!open.empty()) {
    const Offset close = groups_[open.back()].close;
    const Offset brace = next < tree.end ? std::min(close, groups_[next].open) : close;
    if (character < origins_.size() && origins_[character].begin <= brace) {
      visitor.Character(character++, open.back());
    } else if (brace == close) {
      visitor.Close(open.back());
      open.pop_back();
    } else {
      visitor.Open(next);
      open.push_back(next++);
    }
  }
}

}  // namespace quill::rtf
