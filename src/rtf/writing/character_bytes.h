// What the bytes of a character allow beside them.
#pragma once

#include <cstddef>
#include <string_view>

#include "text/document.h"

namespace quill::rtf {

// Asks about the characters of one document, by their index; the document must outlive it. Typed
// characters have no bytes: nothing of this holds for them.
class CharacterBytes {
 public:
  explicit CharacterBytes(const Document& document) : document_(document) {}

  // Whether bytes put directly behind would be read together with the character's: it is half of
  // a pair or the beginning of a sequence that the file breaks off, or a \u with less behind it
  // than stands in for a character.
  bool IsUnfinished(std::size_t character) const;
  // Whether they are taken as they are, so that no control word reaches over their end. The last
  // of them may look like a backslash.
  bool EndInText(std::size_t character) const;
  // Whether they are a picture or an object without a group of its own: it would take what is put
  // behind it for its data.
  bool AreBareObject(std::size_t character) const;
  // How many groups an object leaves open because the file breaks off in it; one without a group
  // of its own counts as one.
  std::size_t OpenGroups(std::size_t character) const;
  // The words between the halves of a split pair; nothing for any other character.
  std::string_view WordsInside(std::size_t character) const { return Inside(Begin(character)); }
  std::string_view Inside(Offset begin) const;

 private:
  Offset Begin(std::size_t character) const { return document_.Origins()[character].begin; }
  std::string_view Of(std::size_t character) const;

  const Document& document_;
};

}  // namespace quill::rtf
