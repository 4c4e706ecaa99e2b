#include "workbench/edit_history.h"

#include <utility>

namespace quill {

void EditHistory::Add(Edit edit) {
  edits_.resize(done_);
  edits_.push_back(std::move(edit));
  ++done_;
}

void EditHistory::Clear() {
  edits_.clear();
  done_ = 0;
}

}  // namespace quill
