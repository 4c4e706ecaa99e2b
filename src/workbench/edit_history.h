// What the user typed, cut or pasted, for undo and redo. Marks are no part of it.
#pragma once

#include <cstddef>
#include <vector>

#include "text/document.h"

namespace quill {

// One edit: `inserted` characters stand at `at`, and the cells are those that stood there before
// it (or, once undone, those that would stand there after it).
struct Edit {
  Position at = 0;
  Position inserted = 0;
  std::vector<Cell> cells;
};

class EditHistory {
 public:
  // Forgets what could be redone.
  void Add(Edit edit);
  void Clear();

  bool CanUndo() const { return done_ > 0; }
  bool CanRedo() const { return done_ < edits_.size(); }

  // The edit to turn round: exchange its `inserted` characters at `at` with its cells, and store
  // what stood there. Undefined where there is none.
  Edit& StepBack() { return edits_[--done_]; }
  Edit& StepForward() { return edits_[done_++]; }

 private:
  std::vector<Edit> edits_;
  std::size_t done_ = 0;
};

}  // namespace quill
