// The one failure that handlers know.
#pragma once

#include <stdexcept>

namespace quill {

// An operation that fails: a file that cannot be read, an index outside a list, a text that is not
// a number. The end of the program, a missing answer in a scenario and bugs have other types.
class StatementFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace quill
