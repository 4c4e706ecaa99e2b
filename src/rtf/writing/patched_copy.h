// A copy of a source with stretches left out and bytes put in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/source.h"

namespace quill::rtf {

// Bytes of the source that a save replaces, wherever the copy passes them.
struct Patch {
  Offset begin = 0;
  Offset end = 0;
  std::string bytes;
  bool behindText = false;  // what stands in front is no control word, whatever it looks like
};

// Copies from front to back. Where bytes come to stand side by side that did not in the source, a
// control word keeps its end: it gets the blank that it needs.
class PatchedCopy {
 public:
  // The patches must be in order and not overlap. The source must outlive the copy.
  PatchedCopy(std::string_view source, std::vector<Patch> patches);

  Offset At() const { return at_; }
  // Whether the source holds nothing but line ends between here and `to`, with no patch among it.
  bool OnlyLineEndsUpTo(Offset to) const;
  void CopyTo(Offset to);
  // Goes on behind bytes of the source without copying them.
  void SkipTo(Offset to);
  void Append(std::string_view own);
  // What stands last in the copy is text, even if it looks like a control word.
  void EndText() { textEnd_ = out_.size(); }
  std::string Take() { return std::move(out_); }

 private:
  void CopyBytes(Offset to);
  std::string_view Separator(char next) const;

  std::string_view source_;
  std::vector<Patch> patches_;
  std::size_t nextPatch_ = 0;
  Offset at_ = 0;
  bool seam_ = false;        // what was appended last is not what stands in front of `at_`
  std::size_t textEnd_ = 0;  // no control word of the copy begins in front of this
  std::string out_;
};

}  // namespace quill::rtf
