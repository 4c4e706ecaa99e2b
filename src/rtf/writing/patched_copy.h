// Copies a source with bytes left out and put in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/source.h"

namespace quill::rtf {

// A replacement that applies when the copy passes it.
struct Patch {
  Offset begin = 0;
  Offset end = 0;
  std::string bytes;
  bool behindText = false;  // what precedes it is no control word, even if it looks like one
};

// Copies front to back. Where a control word gets a new neighbour that would be read as part of it,
// it gets the blank that ends it.
class PatchedCopy {
 public:
  // Patches must be in order and must not overlap. The source must outlive the copy.
  PatchedCopy(std::string_view source, std::vector<Patch> patches);

  Offset At() const { return at_; }
  // Whether there are only line ends, and no patch, between here and `to`.
  bool OnlyLineEndsUpTo(Offset to) const;
  void CopyTo(Offset to);
  // Skips bytes of the source.
  void SkipTo(Offset to);
  void Append(std::string_view own);
  // The copy so far ends in text, even if that looks like a control word.
  void EndText() { textEnd_ = out_.size(); }
  std::string Take() { return std::move(out_); }

 private:
  void CopyBytes(Offset to);
  std::string_view Separator(char next) const;

  std::string_view source_;
  std::vector<Patch> patches_;
  std::size_t nextPatch_ = 0;
  Offset at_ = 0;
  bool seam_ = false;        // the copy does not end in what precedes `at_`
  std::size_t textEnd_ = 0;  // the copy's last control word begins at or after this
  std::string out_;
};

}  // namespace quill::rtf
