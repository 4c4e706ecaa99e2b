// Tells groups that an earlier save made from an author's, and whether they are still needed.
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

// Document, trees and targets must outlive it.
class SavedGroups {
 public:
  SavedGroups(const Document& document, const MarkTrees& trees, const Targets& targets);

  // A note for each group of a tree, in order.
  std::vector<GroupNote> NotesOf(const MarkTree& tree);
  // Whether to keep a group in front of which `outside` is in force. An author's group always
  // stays; one of ours stays if some character needs it and its words are still right.
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
