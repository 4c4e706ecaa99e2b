// The source is copied. A stretch of characters whose attributes are not those of its place is put
// into a group of its own, which sets the attributes and ends in front of whatever else the file
// says there: nothing outside can come undone at its brace. Groups that an earlier save made in
// this way are taken apart again where their characters changed, and stay only where they still
// save words: so a file does not grow by marking and unmarking. They are told by their words: any
// other group is its author's, and stays.
#include "rtf/writing/patching.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "rtf/writing/colour_numbers.h"
#include "rtf/writing/encode.h"
#include "rtf/writing/mark_trees.h"
#include "rtf/writing/patched_copy.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

class Patcher {
 public:
  explicit Patcher(const Document& document);

  std::string Write();

 private:
  bool IsChanged(std::size_t character) const { return changed_[formatIds_[character]] != 0; }
  bool IsLoose(std::size_t character) const {
    return IsChanged(character) || origins_.IsTyped(character);
  }
  const Attributes& Target(std::size_t character) const { return targets_[formatIds_[character]]; }
  bool HasChanged() const;
  void NumberColours();
  std::vector<Patch> Patches() const;

  // A group of a tree.
  struct GroupNote {
    std::vector<FormatId> formats;  // of the characters in it
    bool ours = true;               // a save made it
  };
  std::vector<GroupNote> NotesOf(const MarkTree& tree);
  bool IsWanted(const GroupNote& note, const Attributes& inside) const;
  // Whether the words of a group are those that a save would put between the two.
  bool AreWords(const MarkGroup& group, const Attributes& outside, const Attributes& inside,
                bool rightToLeft);
  bool IsRightToLeft(std::size_t character) const {
    return document_.Formats()[formatIds_[character]].look.rightToLeft;
  }
  void EmitTree(const MarkTree& tree);
  void Emit(std::size_t character, const Attributes& inForce);
  void EmitBytes(std::size_t character);
  void OpenWrap(std::size_t character, const Attributes& inForce);
  void CloseWrap();
  bool BreaksOffHere() const;
  void CopyInFront(std::size_t character, Offset to);
  // Whether the bytes of a character are taken as they are, so that no control word reaches over
  // their end. The last of them may look like a backslash.
  bool EndsInText(std::size_t character) const;
  void EndCharacter(std::size_t character);

  const Document& document_;
  const Source& source_;
  const FormatNumbers& formatIds_;
  const OriginList& origins_;
  const MarkTrees trees_;
  std::vector<Attributes> targets_;  // of each format, as the file is to have it
  std::vector<char> changed_;        // whether that differs from what its place has
  std::vector<MarkTree> touched_;    // groups with a changed character in them, in order
  ColourNumbers colours_;
  ColourNumbers coloursRead_;  // without those that this save adds
  PatchedCopy out_;

  // The group that is being written around a stretch of characters.
  struct Wrap {
    bool open = false;
    Attributes inForce;
    Attributes target;
    bool rightToLeft = false;
  };
  Wrap wrap_;
};

Patcher::Patcher(const Document& document)
    : document_(document),
      source_(document.GetSource()),
      formatIds_(document.FormatIds()),
      origins_(document.Origins()),
      trees_(document),
      colours_(source_.colours),
      coloursRead_(source_.colours),
      out_("", {}) {
  const FormatTable& formats = document.Formats();
  for (FormatId id = 0; id < formats.Size(); ++id) {
    targets_.push_back(InFile(formats[id].now));
    changed_.push_back(targets_.back() != formats[id].written ? 1 : 0);
  }
}

std::string Patcher::Write() {
  const bool nothing = document_.Cuts().empty() && !origins_.HasTyped() && !HasChanged();
  if (nothing) return source_.bytes;

  touched_ = trees_.Holding([&](std::size_t character) { return IsChanged(character); });
  NumberColours();
  out_ = PatchedCopy(source_.bytes, Patches());
  std::size_t character = 0;
  for (const MarkTree& tree : touched_) {
    for (; character < tree.inside.begin; ++character) {
      if (IsLoose(character)) Emit(character, document_.Formats()[formatIds_[character]].written);
    }
    EmitTree(tree);
    character = tree.inside.end;
  }
  for (; character < origins_.size(); ++character) {
    if (IsLoose(character)) Emit(character, document_.Formats()[formatIds_[character]].written);
  }
  CloseWrap();
  out_.CopyTo(static_cast<Offset>(source_.bytes.size()));
  return out_.Take();
}

bool Patcher::HasChanged() const {
  if (std::find(changed_.begin(), changed_.end(), 1) == changed_.end()) return false;
  const std::size_t size = formatIds_.size();
  std::size_t at = 0;
  while (at < size && !IsChanged(at)) at = formatIds_.EndOfStretch(at, size);
  return at < size;
}

// Every colour that will be written gets its number before the table is copied.
void Patcher::NumberColours() {
  std::vector<bool> used(targets_.size());
  const std::size_t size = formatIds_.size();
  for (std::size_t at = 0; at < size; at = formatIds_.EndOfStretch(at, size)) {
    used[formatIds_[at]] = IsChanged(at);
  }
  for (const MarkTree& tree : touched_) {
    for (std::size_t i = tree.inside.begin; i < tree.inside.end; ++i) used[formatIds_[i]] = true;
  }
  for (FormatId id = 0; id < used.size(); ++id) {
    const Attributes& written = document_.Formats()[id].written;
    if (used[id] && targets_[id].colour != written.colour) colours_.NumberOf(targets_[id].colour);
  }
}

std::vector<Patch> Patcher::Patches() const {
  std::vector<Patch> patches;
  std::size_t kept = 0;  // characters in front of the cut
  for (const auto& [begin, end] : document_.Cuts()) {
    kept = origins_.FirstBehind(begin, kept);
    Patch patch{begin, end, "", false};
    if (!patches.empty() && patches.back().end == begin) {
      patch.behindText = patches.back().behindText;
    } else if (kept > 0) {
      patch.behindText = EndsInText(kept - 1) && origins_[kept - 1].end() == begin;
    }
    patches.push_back(patch);
  }
  if (colours_.HasNew()) {
    const ColourTable& table = source_.colours;
    patches.push_back({table.end, table.end, colours_.TableInsertion(), false});
    if (table.expandedEnd != 0) {
      patches.push_back({table.expandedEnd, table.expandedEnd, colours_.MirrorInsertion(), false});
    }
  }
  std::stable_sort(patches.begin(), patches.end(), [](const Patch& a, const Patch& b) {
    return a.begin < b.begin || (a.begin == b.begin && a.end < b.end);
  });
  return patches;
}

std::vector<Patcher::GroupNote> Patcher::NotesOf(const MarkTree& tree) {
  struct Collector {
    Patcher& patcher;
    const MarkTree& tree;
    std::vector<GroupNote> notes;
    std::vector<std::size_t> around;
    void Open(std::size_t index) {
      const MarkGroup& group = patcher.source_.groups[index];
      notes[index - tree.first].ours =
          patcher.AreWords(group, group.outside, Changed(group.outside, group.words),
                           patcher.IsRightToLeft(tree.inside.begin));
      around.push_back(index);
    }
    void Close(std::size_t index) {
      around.pop_back();
      if (around.empty()) return;
      const GroupNote& note = notes[index - tree.first];
      GroupNote& outer = notes[around.back() - tree.first];
      // No save puts a group of ours around one of the author's.
      outer.ours = outer.ours && note.ours;
      for (const FormatId id : note.formats) Add(outer, id);
    }
    void Character(std::size_t character, std::size_t group) {
      Add(notes[group - tree.first], patcher.formatIds_[character]);
    }
    static void Add(GroupNote& note, FormatId id) {
      if (note.formats.empty() || note.formats.back() != id) note.formats.push_back(id);
    }
  };
  Collector collector{*this, tree, std::vector<GroupNote>(tree.end - tree.first), {}};
  trees_.Walk(tree, collector);
  return std::move(collector.notes);
}

// Whether a group serves its characters: one of them is to look as it says, or they part from it in
// different ways, and may come back to it.
bool Patcher::IsWanted(const GroupNote& note, const Attributes& inside) const {
  const auto isInside = [&](FormatId id) { return targets_[id] == inside; };
  const auto isOther = [&](FormatId id) { return targets_[id] != targets_[note.formats.front()]; };
  return std::any_of(note.formats.begin(), note.formats.end(), isInside) ||
         std::any_of(note.formats.begin(), note.formats.end(), isOther);
}

bool Patcher::AreWords(const MarkGroup& group, const Attributes& outside, const Attributes& inside,
                       bool rightToLeft) {
  const std::string_view words =
      std::string_view(source_.bytes).substr(group.open + 1, group.content - group.open - 1);
  return words == WordsBetween(outside, inside, rightToLeft, coloursRead_);
}

// Writes the groups of a tree anew. A group of ours stays where its words are still those that are
// needed and serve the characters in it; else its braces and words go, and what stood in
// it is written against what is in force outside.
void Patcher::EmitTree(const MarkTree& tree) {
  struct Emitter {
    Patcher& patcher;
    const MarkTree& tree;
    std::vector<GroupNote> notes;
    bool rightToLeft;
    std::vector<Attributes> inForce;
    std::vector<bool> kept;
    std::size_t next;  // the character that comes next

    void Open(std::size_t index) {
      const MarkGroup& group = patcher.source_.groups[index];
      const Attributes outside = inForce.back();
      const Attributes inside = Changed(outside, group.words);
      const GroupNote& note = notes[index - tree.first];
      const bool keep = !note.ours || (patcher.IsWanted(note, inside) &&
                                       patcher.AreWords(group, outside, inside, rightToLeft));
      patcher.CloseWrap();
      patcher.CopyInFront(next, group.open);
      if (keep) {
        patcher.out_.CopyTo(group.content);
      } else {
        patcher.out_.SkipTo(group.content);
      }
      kept.push_back(keep);
      inForce.push_back(keep ? inside : outside);
    }
    void Character(std::size_t character, std::size_t) {
      patcher.Emit(character, inForce.back());
      next = character + 1;
    }
    void Close(std::size_t index) {
      const Offset brace = patcher.source_.groups[index].close;
      const auto size = static_cast<Offset>(patcher.source_.bytes.size());
      const Offset behind = std::min<Offset>(brace + 1, size);
      patcher.CloseWrap();
      patcher.CopyInFront(next, brace);
      if (kept.back()) {
        patcher.out_.CopyTo(behind);
      } else {
        patcher.out_.SkipTo(behind);
      }
      kept.pop_back();
      inForce.pop_back();
    }
  };
  const Attributes outside = source_.groups[tree.first].outside;
  Emitter emitter{*this,     tree, NotesOf(tree),    IsRightToLeft(tree.inside.begin),
                  {outside}, {},   tree.inside.begin};
  trees_.Walk(tree, emitter);
}

void Patcher::Emit(std::size_t character, const Attributes& inForce) {
  const Origin& origin = origins_[character];
  const Attributes& target = Target(character);
  const bool rightToLeft = IsRightToLeft(character);
  const bool goesOn = wrap_.open && wrap_.target == target && wrap_.inForce == inForce &&
                      wrap_.rightToLeft == rightToLeft && out_.OnlyLineEndsUpTo(origin.begin);
  if (!goesOn) CloseWrap();
  CopyInFront(character, origin.begin);
  if (target != inForce && !goesOn) OpenWrap(character, inForce);
  EmitBytes(character);
  EndCharacter(character);
}

void Patcher::EmitBytes(std::size_t character) {
  const Origin& origin = origins_[character];
  if (!origin.IsTyped()) return out_.CopyTo(origin.end());
  const CharacterLook& look = document_.Formats()[formatIds_[character]].look;
  std::string bytes;
  AppendCharacter(bytes, document_.Text()[character], look.fallback,
                  document_.Fonts()[look.font].symbol);
  out_.Append(bytes);
}

void Patcher::OpenWrap(std::size_t character, const Attributes& inForce) {
  wrap_ = {true, inForce, Target(character), IsRightToLeft(character)};
  out_.Append("{" + WordsBetween(inForce, wrap_.target, wrap_.rightToLeft, colours_));
}

void Patcher::CloseWrap() {
  if (!wrap_.open) return;
  wrap_.open = false;
  if (!BreaksOffHere()) out_.Append("}");
}

// Whether the source breaks off behind the character that was written last: its end ends whatever
// group is open. In a picture, a brace would become part of that at every save.
bool Patcher::BreaksOffHere() const {
  return out_.At() == source_.bytes.size() && !origins_.IsTyped(origins_.size() - 1);
}

// Copies what stands in front of a character up to an offset.
void Patcher::CopyInFront(std::size_t character, Offset to) {
  if (character > 0) {
    const Offset end = origins_[character - 1].end();
    if (out_.At() <= end && end <= to) {
      out_.CopyTo(end);
      EndCharacter(character - 1);
    }
  }
  out_.CopyTo(to);
}

void Patcher::EndCharacter(std::size_t character) {
  if (origins_.IsTyped(character) || EndsInText(character)) out_.EndText();
}

bool Patcher::EndsInText(std::size_t character) const {
  const std::string_view bytes = document_.BytesOf(static_cast<Position>(character));
  return !bytes.empty() && bytes[0] != '\\' && bytes[0] != '{';
}

}  // namespace

std::string Patched(const Document& document) { return Patcher(document).Write(); }

}  // namespace quill::rtf
