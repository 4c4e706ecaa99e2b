// What a handler does when one of its statements fails. Only StatementFailed is caught: the end of
// the program and bugs pass through.
#pragma once

#include <utility>

#include "disk/statement_failed.h"

namespace quill {

// "Carry on": abandons the statement, or the procedure that it calls, at the point of failure and
// continues with the next.
template <class Statement>
void CarryOn(Statement&& statement) {
  try {
    std::forward<Statement>(statement)();
  } catch (const StatementFailed&) {
  }
}

// "Leave": ends the handler silently at the first failure. What it has done so far remains.
template <class Handler>
void LeaveOnFailure(Handler&& handler) {
  CarryOn(std::forward<Handler>(handler));
}

}  // namespace quill
