// The readings that a comparison rests on: which reader says what, over all texts and lists of a
// call.
#pragma once

#include <map>
#include <string>

#include "companion/agreement.h"
#include "companion/console.h"
#include "companion/options.h"

namespace quill::companion {

// By the readers' names, UTF-8, in the order of code points. Damaged lines are told and left out.
// Throws StatementFailed where there is nothing to compare: texts that differ, a tag without the
// name of a reader, fewer than two readers.
std::map<std::string, Reading> ReadingsOf(const Options& options, Console& console);

}  // namespace quill::companion
