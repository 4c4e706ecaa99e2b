#include "rtf/writing/saved_groups.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "rtf/writing/encode.h"

namespace quill::rtf {

SavedGroups::SavedGroups(const Document& document, const MarkTrees& trees, const Targets& targets)
    : document_(document),
      trees_(trees),
      targets_(targets),
      colours_(document.GetSource().colours) {}

struct SavedGroups::Collector {
  SavedGroups& groups;
  const MarkTree& tree;
  bool rightToLeft;
  std::vector<GroupNote> notes;
  std::vector<std::size_t> around;

  void Open(std::size_t index) {
    const MarkGroup& group = groups.document_.GetSource().groups[index];
    notes[index - tree.first].ours = groups.AreWords(group, group.outside, rightToLeft);
    around.push_back(index);
  }
  void Close(std::size_t index) {
    around.pop_back();
    if (around.empty()) return;
    const GroupNote& note = notes[index - tree.first];
    GroupNote& outer = notes[around.back() - tree.first];
    // No save wraps an author's group.
    outer.ours = outer.ours && note.ours;
    for (const FormatId id : note.formats) Add(outer, id);
  }
  void Character(std::size_t character, std::size_t group) {
    Add(notes[group - tree.first], groups.document_.FormatIds()[character]);
  }
  static void Add(GroupNote& note, FormatId id) {
    if (note.formats.empty() || note.formats.back() != id) note.formats.push_back(id);
  }
};

std::vector<GroupNote> SavedGroups::NotesOf(const MarkTree& tree) {
  const Format& first = document_.FormatAt(static_cast<Position>(tree.inside.begin));
  Collector collector{
      *this, tree, first.look.rightToLeft, std::vector<GroupNote>(tree.end - tree.first), {}};
  trees_.Walk(tree, collector);
  return std::move(collector.notes);
}

bool SavedGroups::IsKept(const MarkGroup& group, const GroupNote& note, const Attributes& outside,
                         bool rightToLeft) {
  return !note.ours ||
         (IsWanted(note, Changed(outside, group.words)) && AreWords(group, outside, rightToLeft));
}

// Whether some character is to look as the group says, or the characters are to look different from
// each other; then later changes may need the group again.
bool SavedGroups::IsWanted(const GroupNote& note, const Attributes& inside) const {
  return std::any_of(note.formats.begin(), note.formats.end(), [&](FormatId id) {
    const Attributes& target = targets_.OfFormat(id);
    return target == inside || target != targets_.OfFormat(note.formats.front());
  });
}

// Whether a group has the very words that a save would write there.
bool SavedGroups::AreWords(const MarkGroup& group, const Attributes& outside, bool rightToLeft) {
  const std::string_view words = std::string_view(document_.GetSource().bytes)
                                     .substr(group.open + 1, group.content - group.open - 1);
  return words == WordsBetween(outside, Changed(outside, group.words), rightToLeft, colours_);
}

}  // namespace quill::rtf
