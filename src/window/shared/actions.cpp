#include "window/shared/actions.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "window/shared/waiting_cursor.h"

namespace quill {
namespace {

constexpr std::string_view kLong[] = {"mnuFileOpen",
                                      "mnuFileSave",
                                      "mnuFileClose",
                                      "Add_global_parsing_list",
                                      "Add_specific_parsing_list",
                                      "Parse_1",
                                      "Parse_2",
                                      "Parse_3"};

bool TakesLong(const Control& control) {
  return std::find(std::begin(kLong), std::end(kLong), control.Name()) != std::end(kLong);
}

template <class Clicked>
void ClickOn(Actions& actions, Clicked& control) {
  std::optional<WaitingCursor> waiting;
  if (TakesLong(control) && !actions.Running()) waiting.emplace();
  actions.Do([&](Program& program) { program.Click(control); });
}

}  // namespace

Actions::Actions(Program& program, std::function<void()> show, std::function<void()> ended)
    : program_(program), show_(std::move(show)), ended_(std::move(ended)) {}

void Actions::Do(const std::function<void(Program&)>& action) {
  if (running_ || program_.Ended()) return;
  running_ = true;
  try {
    action(program_);
    show_();
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "quillorandix: stopped by a fault of its own: %s\n", fault.what());
    std::abort();
  }
  running_ = false;
  if (program_.Ended()) ended_();
}

void Actions::Click(CommandButton& button) { ClickOn(*this, button); }

void Actions::Click(MenuItem& item) { ClickOn(*this, item); }

}  // namespace quill
