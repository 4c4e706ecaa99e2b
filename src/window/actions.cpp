#include "window/actions.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

namespace quill {

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

}  // namespace quill
