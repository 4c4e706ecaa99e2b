#include "scenario/player.h"

#include <algorithm>
#include <ostream>

#include "disk/posix_disk.h"
#include "scenario/line_reader.h"
#include "scenario/state.h"

namespace quill::scenario {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Removes the next line from the text and returns it, without its line end.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

[[noreturn]] void RefuseKind(const Control& control, std::string_view action) {
  throw ScenarioError(std::string(control.Name()) + " can't be " + std::string(action));
}

int CheckedIndex(const Control& control, std::int64_t index, int count) {
  if (index >= count) {
    throw ScenarioError(std::string(control.Name()) + " has no index " + std::to_string(index) +
                        ", only " + std::to_string(count) + " rows");
  }
  return static_cast<int>(index);
}

bool IsBox(const Control& control) {
  return control.Kind() == Kind::kTextBox || control.Kind() == Kind::kComboBox;
}

}  // namespace

Outcome Player::Play(std::string_view name, std::string_view scenario) {
  name_ = name;
  line_ = 0;
  unexpected_ = false;
  if (scenario.starts_with(kByteOrderMark)) scenario.remove_prefix(kByteOrderMark.size());
  try {
    while (!scenario.empty()) {
      const std::string_view line = TakeLine(scenario);
      ++line_;
      PlayLine(line);
    }
  } catch (const ScenarioError& error) {
    err_ << name_ << ':' << line_ << ": " << error.what() << std::endl;
    return Outcome::kBroken;
  }
  return unexpected_ ? Outcome::kUnexpected : Outcome::kPassed;
}

void Player::PlayLine(std::string_view line) {
  if (IsSkipped(line)) return;
  std::visit([&](const auto& step) { Do(step); }, ParseStep(line));
}

Control& Player::Find(std::string_view name) const {
  Control* const control = program_.Form().Find(name);
  if (control == nullptr) throw ScenarioError("no control is called " + std::string(name));
  return *control;
}

void Player::Do(const ClickStep& step) {
  Control& control = Find(step.name);
  if (step.item.has_value()) {
    auto* const list = dynamic_cast<ListBox*>(&control);
    if (list == nullptr) RefuseKind(control, "clicked at an item");
    user_.ClickItem(*list, CheckedIndex(control, *step.item, list->ListCount()));
  } else if (auto* const button = dynamic_cast<CommandButton*>(&control)) {
    user_.Click(*button);
  } else if (auto* const item = dynamic_cast<MenuItem*>(&control)) {
    user_.Click(*item);
  } else {
    RefuseKind(control, "clicked");
  }
}

void Player::Do(const PickStep& step) {
  Control& control = Find(step.name);
  auto* const combo = dynamic_cast<ComboBox*>(&control);
  if (combo == nullptr) RefuseKind(control, "picked from");
  user_.Pick(*combo, CheckedIndex(control, step.row, combo->ListCount()));
}

void Player::Do(const TypeStep& step) {
  Control& control = Find(step.name);
  if (!IsBox(control) && control.Kind() != Kind::kRichText) RefuseKind(control, "typed into");
  user_.Type(control, step.text);
}

void Player::Do(const EnterStep& step) {
  Control& control = Find(step.name);
  if (!IsBox(control)) RefuseKind(control, "entered as a whole");
  user_.Enter(control, step.text);
}

void Player::Do(const SelectStep& step) { user_.Select(step.start, step.length); }

void Player::Do(const CloseStep&) { user_.Close(); }

void Player::Do(const AnswerStep& step) { dialogs_.Add(step, line_); }

void Player::Do(const ExpectStep& step) {
  const Json found = StateMember(program_, step.target);
  if (found == step.value) return;
  unexpected_ = true;
  err_ << name_ << ':' << line_ << ": " << step.target << ": wanted " << step.value.dump()
       << ", found " << found.dump() << std::endl;
}

void Player::Do(const DumpStep&) { PrintLine(out_, State(program_)); }

Outcome PlayOnNewProgram(std::string_view name, std::string_view scenario, std::ostream& out,
                         std::ostream& err) {
  PosixDisk disk;
  ScriptedDialogs dialogs(out);
  Program program(dialogs, disk);
  User user(program);
  return Player(program, user, dialogs, out, err).Play(name, scenario);
}

}  // namespace quill::scenario
