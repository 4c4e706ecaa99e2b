// What becomes of the rest of a handler where one of its statements fails. Nothing but
// StatementFailed is caught: the end of the program and bugs pass through.
#pragma once

#include <utility>

#include "disk/statement_failed.h"

namespace quill {

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
