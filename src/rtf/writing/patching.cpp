// Copies the source. A run of characters whose attributes differ from those of its place is wrapped
// in a group that sets them and ends before anything but characters, so that its closing brace
// undoes nothing else. Groups that an earlier save made are taken apart where their characters
// changed, and kept only if they still serve: a file does not grow by marking and unmarking. They
// are recognised by their words; any other group is the author's, and stays.
#include "rtf/writing/patching.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "rtf/writing/colour_numbers.h"
#include "rtf/writing/encode.h"
#include "rtf/writing/mark_trees.h"
#include "rtf/writing/patched_copy.h"
#include "rtf/writing/saved_groups.h"
#include "rtf/writing/targets.h"
#include "text/unicode.h"

namespace quill::rtf {
namespace {

class Patcher {
 public:
  explicit Patcher(const Document& document);

  std::string Write();

 private:
  struct TreeWriter;

  std::vector<Patch> Patches() const;
  bool IsRightToLeft(std::size_t character) const {
    return document_.Formats()[formatIds_[character]].look.rightToLeft;
  }
  void EmitTree(const MarkTree& tree);
  void EmitLoose(std::size_t begin, std::size_t end);
  void Emit(std::size_t character, const Attributes& inForce);
  void EmitBytes(std::size_t character);
  void OpenWrap(std::size_t character, const Attributes& inForce);
  void CloseWrap();
  bool BreaksOffHere() const;
  void CopyInFront(std::size_t character, Offset to);
  // Whether a character was read from literal bytes. No control word extends past those, even if
  // the last one looks like a backslash.
  bool EndsInText(std::size_t character) const;
  void EndCharacter(std::size_t character);

  const Document& document_;
  const Source& source_;
  const FormatNumbers& formatIds_;
  const OriginList& origins_;
  const MarkTrees trees_;
  const Targets targets_;
  SavedGroups groups_;
  ColourNumbers colours_;
  PatchedCopy out_;

  // The group that is being written around a run of characters.
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
      targets_(document),
      groups_(document, trees_, targets_),
      colours_(source_.colours),
      out_("", {}) {}

std::string Patcher::Write() {
  const bool nothing = document_.Cuts().empty() && !origins_.HasTyped() && !targets_.IsAnyChanged();
  if (nothing) return source_.bytes;

  const std::vector<MarkTree> touched =
      trees_.Holding([&](std::size_t character) { return targets_.IsChanged(character); });
  // Number all colours before the table is copied.
  targets_.NumberColours(touched, colours_);
  out_ = PatchedCopy(source_.bytes, Patches());
  std::size_t character = 0;
  for (const MarkTree& tree : touched) {
    EmitLoose(character, tree.inside.begin);
    EmitTree(tree);
    character = tree.inside.end;
  }
  EmitLoose(character, origins_.size());
  CloseWrap();
  out_.CopyTo(static_cast<Offset>(source_.bytes.size()));
  return out_.Take();
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

// Writes a tree's groups. If one is dropped, its content is written against the attributes outside.
struct Patcher::TreeWriter {
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
    kept.push_back(patcher.groups_.IsKept(group, notes[index - tree.first], outside, rightToLeft));
    inForce.push_back(kept.back() ? Changed(outside, group.words) : outside);
    Pass(group.open, group.content);
  }
  void Character(std::size_t character, std::size_t) {
    patcher.Emit(character, inForce.back());
    next = character + 1;
  }
  void Close(std::size_t index) {
    const Offset brace = patcher.source_.groups[index].close;
    // If the file breaks off, there is no brace.
    Pass(brace, std::min(brace + 1, static_cast<Offset>(patcher.source_.bytes.size())));
    kept.pop_back();
    inForce.pop_back();
  }
  // Copies the bytes from a brace on only if the group is kept.
  void Pass(Offset brace, Offset end) {
    patcher.CloseWrap();
    patcher.CopyInFront(next, brace);
    if (kept.back()) {
      patcher.out_.CopyTo(end);
    } else {
      patcher.out_.SkipTo(end);
    }
  }
};

void Patcher::EmitTree(const MarkTree& tree) {
  TreeWriter writer{*this,
                    tree,
                    groups_.NotesOf(tree),
                    IsRightToLeft(tree.inside.begin),
                    {source_.groups[tree.first].outside},
                    {},
                    tree.inside.begin};
  trees_.Walk(tree, writer);
}

// Writes characters outside of trees; unchanged ones are copied along with the source.
void Patcher::EmitLoose(std::size_t begin, std::size_t end) {
  for (std::size_t i = begin; i < end; ++i) {
    if (!targets_.IsChanged(i) && !origins_.IsTyped(i)) continue;
    Emit(i, document_.Formats()[formatIds_[i]].written);
  }
}

void Patcher::Emit(std::size_t character, const Attributes& inForce) {
  const Origin& origin = origins_[character];
  const Attributes& target = targets_.Of(character);
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
  wrap_ = {true, inForce, targets_.Of(character), IsRightToLeft(character)};
  out_.Append("{" + WordsBetween(inForce, wrap_.target, wrap_.rightToLeft, colours_));
}

void Patcher::CloseWrap() {
  if (!wrap_.open) return;
  wrap_.open = false;
  if (!BreaksOffHere()) out_.Append("}");
}

// Whether the source breaks off after the last character written; its end then closes all groups. A
// brace would become part of a truncated picture, one more at every save.
bool Patcher::BreaksOffHere() const {
  return out_.At() == source_.bytes.size() && !origins_.IsTyped(origins_.size() - 1);
}

// Copies what precedes a character, up to an offset.
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
