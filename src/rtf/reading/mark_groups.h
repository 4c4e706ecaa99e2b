// Finds the groups that consist of words of the four attributes and then characters: the form in
// which marks are saved.
#pragma once

#include <cstddef>
#include <vector>

#include "text/source.h"

namespace quill::rtf {

// The parser reports everything that it reads, in order.
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
  // The file ends, and all open groups with it.
  void End(Offset at);
  // The group opened last turns out to be one character.
  void GroupIsCharacter();

  // A snapshot.
  struct Place;
  Place Here() const;
  // The group that was the last to be opened when the snapshot was taken, and is closed by now,
  // turns out to be one character.
  void GroupWasCharacter(Place place);

  // In the order of their opening braces.
  std::vector<MarkGroup> Take();

 private:
  struct Candidate {
    MarkGroup group;
    bool hasContent = false;
  };
  // No program nests marks deeper than this.
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
