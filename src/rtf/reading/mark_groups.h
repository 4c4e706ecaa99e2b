// Finds the groups of a file that hold words of the four attributes, then characters: marks as
// they are saved.
#pragma once

#include <cstddef>
#include <vector>

#include "text/source.h"

namespace quill::rtf {

// Told of everything that a reader meets, in order.
class MarkGroupFinder {
 public:
  // `bytes` is the size of the file.
  explicit MarkGroupFinder(std::size_t bytes);

  void Open(Offset at, const Attributes& inForce);
  // A word that sets attributes and nothing else.
  void Word(const AttributeChange& change, Offset end);
  void Characters();
  // Anything that is neither.
  void Other() { open_.clear(); }
  void Close(Offset at);
  // The file ends: whatever is open ends there.
  void End(Offset at);
  // The group opened last turns out to be one character.
  void GroupIsCharacter();

  // What is known at one place of the file.
  struct Place;
  Place Here() const;
  // The group opened last in front of a place turns out to be one character. It is closed by now.
  void GroupWasCharacter(Place place);

  // In the order of their opening braces.
  std::vector<MarkGroup> Take();

 private:
  struct Candidate {
    MarkGroup group;
    bool hasContent = false;
  };
  // Deeper nesting than this is no program's mark.
  static constexpr std::size_t kDeepest = 32;

  // The innermost open groups that may still be marks, each directly in the one before.
  std::vector<Candidate> open_;
  std::vector<MarkGroup> found_;
};

struct MarkGroupFinder::Place {
  std::vector<Candidate> open;
  std::size_t found = 0;
};

}  // namespace quill::rtf
