#include "rtf/reading/state.h"

#include <functional>

namespace quill::rtf {
namespace {

quill::Format FormatOf(const State& state) {
  return {state.attributes, state.attributes, state.look, state.paragraph};
}

}  // namespace

StateStack::StateStack(FormatTable& formats, const State& first) : formats_(formats), now_(first) {}

FormatId StateStack::Format() {
  if (nowFormat_ == kNoFormat) {
    nowFormat_ = formats_.Add(FormatOf(now_));
    if (!changed_) stateFormats_[nowId_] = nowFormat_;
  }
  return nowFormat_;
}

StateStack::StateId StateStack::Intern() {
  if (!changed_) return nowId_;
  const auto [entry, isNew] = ids_.try_emplace(now_, static_cast<StateId>(states_.size()));
  if (isNew) {
    states_.push_back(now_);
    stateFormats_.push_back(kNoFormat);
  }
  nowId_ = entry->second;
  changed_ = false;
  if (nowFormat_ == kNoFormat) {
    nowFormat_ = stateFormats_[nowId_];
  } else {
    stateFormats_[nowId_] = nowFormat_;
  }
  return nowId_;
}

void StateStack::Open() {
  const StateId id = Intern();
  ++depth_;
  if (!levels_.empty() && levels_.back().state == id) {
    ++levels_.back().groups;
  } else {
    levels_.push_back({id, 1});
  }
}

void StateStack::Close() {
  --depth_;
  Level& level = levels_.back();
  if (changed_ || nowId_ != level.state) {
    nowId_ = level.state;
    now_ = states_[nowId_];
    nowFormat_ = stateFormats_[nowId_];
    changed_ = false;
  }
  if (--level.groups == 0) levels_.pop_back();
}

std::size_t StateStack::Hash::operator()(const State& state) const {
  const std::size_t format = FormatTable::HashOf(FormatOf(state));
  const std::size_t page = std::hash<const void*>()(state.page);
  return format ^ page * 31 ^ static_cast<std::size_t>(state.otherBold);
}

}  // namespace quill::rtf
