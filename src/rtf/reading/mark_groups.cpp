#include "rtf/reading/mark_groups.h"

#include <algorithm>
#include <utility>

namespace quill::rtf {

MarkGroupFinder::MarkGroupFinder(std::size_t bytes) {
  // A mark on one letter and a blank. Only files that no save wrote have more groups.
  constexpr std::size_t kShortest = 12;
  found_.reserve(bytes / kShortest);
}

void MarkGroupFinder::Open(Offset at, const Attributes& inForce) {
  Characters();
  if (open_.size() == kDeepest) open_.clear();
  Candidate candidate;
  candidate.group.open = at;
  candidate.group.content = at + 1;
  candidate.group.outside = inForce;
  open_.push_back(candidate);
}

void MarkGroupFinder::Word(const AttributeChange& change, Offset end) {
  if (open_.empty()) return;
  Candidate& innermost = open_.back();
  if (innermost.hasContent) return Other();
  Merge(innermost.group.words, change);
  innermost.group.content = end;
}

void MarkGroupFinder::Characters() {
  if (open_.empty() || open_.back().hasContent) return;
  open_.back().hasContent = true;
  if (open_.back().group.words == AttributeChange{}) Other();
}

void MarkGroupFinder::Close(Offset at) {
  if (open_.empty()) return;
  Candidate& innermost = open_.back();
  if (!innermost.hasContent) return Other();
  innermost.group.close = at;
  found_.push_back(innermost.group);
  open_.pop_back();
}

void MarkGroupFinder::End(Offset at) {
  while (!open_.empty()) Close(at);
}

void MarkGroupFinder::GroupIsCharacter() {
  if (!open_.empty()) open_.pop_back();
}

MarkGroupFinder::Place MarkGroupFinder::Here() const { return {open_, found_.size()}; }

void MarkGroupFinder::GroupWasCharacter(Place place) {
  open_ = std::move(place.open);
  found_.resize(place.found);
  GroupIsCharacter();
}

std::vector<MarkGroup> MarkGroupFinder::Take() {
  // They were found in the order of their closing braces, which is the same unless some are nested.
  const auto byOpening = [](const MarkGroup& a, const MarkGroup& b) { return a.open < b.open; };
  if (!std::is_sorted(found_.begin(), found_.end(), byOpening)) {
    std::sort(found_.begin(), found_.end(), byOpening);
  }
  return std::move(found_);
}

}  // namespace quill::rtf
