// Tells the groups that an earlier save made from an author's, and whether they still serve.
#pragma once

#include <vector>

#include "rtf/writing/colour_numbers.h"
#include "rtf/writing/mark_trees.h"
#include "rtf/writing/targets.h"
#include "text/document.h"

namespace quill::rtf {

// A group of a tree.
struct GroupNote {
  std::vector<FormatId> formats;  // of the characters in it
  bool ours = true;               // a save made it
};

// Asks about one document, which must outlive it, as must trees and targets.
class SavedGroups {
 public:
  SavedGroups(const Document& document, const MarkTrees& trees, const Targets& targets);

  // Of each group of a tree, in order.
  std::vector<GroupNote> NotesOf(const MarkTree& tree);
  // Whether a group stays, where `outside` is in force in front of it: an author's always does, one
  // of ours where its words are still those that are needed, and serve the characters in it.
  bool IsKept(const MarkGroup& group, const GroupNote& note, const Attributes& outside,
              bool rightToLeft);

 private:
  struct Collector;

  bool IsWanted(const GroupNote& note, const Attributes& inside) const;
  bool AreWords(const MarkGroup& group, const Attributes& outside, bool rightToLeft);

  const Document& document_;
  const MarkTrees& trees_;
  const Targets& targets_;
  ColourNumbers colours_;  // of the source
};

}  // namespace quill::rtf
