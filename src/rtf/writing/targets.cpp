#include "rtf/writing/targets.h"

#include <algorithm>

#include "rtf/writing/encode.h"

namespace quill::rtf {

Targets::Targets(const Document& document)
    : formats_(document.Formats()), ids_(document.FormatIds()) {
  for (FormatId id = 0; id < formats_.Size(); ++id) {
    targets_.push_back(InFile(formats_[id].now));
    changed_.push_back(targets_.back() != formats_[id].written ? 1 : 0);
  }
}

bool Targets::IsAnyChanged() const {
  if (std::find(changed_.begin(), changed_.end(), 1) == changed_.end()) return false;
  const std::size_t size = ids_.size();
  std::size_t at = 0;
  while (at < size && !IsChanged(at)) at = ids_.EndOfStretch(at, size);
  return at < size;
}

void Targets::NumberColours(const std::vector<MarkTree>& trees, ColourNumbers& colours) const {
  std::vector<bool> used(targets_.size());
  const std::size_t size = ids_.size();
  for (std::size_t at = 0; at < size; at = ids_.EndOfStretch(at, size)) {
    used[ids_[at]] = IsChanged(at);
  }
  for (const MarkTree& tree : trees) {
    for (std::size_t i = tree.inside.begin; i < tree.inside.end; ++i) used[ids_[i]] = true;
  }
  for (FormatId id = 0; id < used.size(); ++id) {
    if (used[id] && targets_[id].colour != formats_[id].written.colour) {
      colours.NumberOf(targets_[id].colour);
    }
  }
}

}  // namespace quill::rtf
