// The attributes that each character is to have in the file.
#pragma once

#include <cstddef>
#include <vector>

#include "rtf/writing/colour_numbers.h"
#include "rtf/writing/mark_trees.h"
#include "text/document.h"

namespace quill::rtf {

// The document must outlive it.
class Targets {
 public:
  explicit Targets(const Document& document);

  // Of a character, or of a format, as a file can hold them.
  const Attributes& Of(std::size_t character) const { return targets_[ids_[character]]; }
  const Attributes& OfFormat(FormatId id) const { return targets_[id]; }
  // Whether they differ from those in force at the character's place in the source.
  bool IsChanged(std::size_t character) const { return changed_[ids_[character]] != 0; }
  bool IsAnyChanged() const;
  // Numbers all colours that may be written: those of changed characters and of all characters in
  // the trees.
  void NumberColours(const std::vector<MarkTree>& trees, ColourNumbers& colours) const;

 private:
  const FormatTable& formats_;
  const FormatNumbers& ids_;
  std::vector<Attributes> targets_;  // of each format
  std::vector<char> changed_;        // of each format
};

}  // namespace quill::rtf
