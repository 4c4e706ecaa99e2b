// How a statement of a handler fails, and what becomes of the rest of the handler.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace quill {

// A statement that the window system refuses: a file that cannot be read, an index outside a list,
// a text that is no number. It is the one failure that handlers know. The end of the program, a
// missing answer of a scenario and bugs are other types and pass through.
class StatementFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// "Carry on": the statement, or the procedure called, is given up where it fails, and the next one
// runs.
template <class Statement>
void CarryOn(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const StatementFailed&) {
  }
}

// "Leave": a handler ends, silently, at the first statement that fails; what was done stays done.
template <class Handler>
void LeaveOnFailure(Handler&& handler) {
  CarryOn(std::forward<Handler>(handler));
}

}  // namespace quill
