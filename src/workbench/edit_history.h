// Undo and redo of what the user typed, cut or pasted. Marks are not part of it.
#pragma once

#include <cstddef>
#include <vector>

#include "text/document.h"

namespace quill {

// One edit: it put `inserted` characters at `at`, in place of the cells. (Once it is undone, the
// cells are the characters that it had inserted.)
struct Edit {
  Position at = 0;
  Position inserted = 0;
  std::vector<Cell> cells;
};

class EditHistory {
 public:
  // Discards what could be redone.
  void Add(Edit edit);
  void Clear();

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < edits_.size(); }

  // The edit to reverse: exchange its `inserted` characters at `at` for its cells, and store what
  // was there. Undefined if there is none.
  Edit& StepBack() { return edits_[--done_]; }
  Edit& StepForward() { return edits_[done_++]; }

 private:
  std::vector<Edit> edits_;
  std::size_t done_ = 0;
};

}  // namespace quill
