// The readings that a comparison rests on: what each reader says, in all texts and lists of a call.
#pragma once

#include <map>
#include <string>

#include "companion/agreement.h"
#include "companion/console.h"
#include "companion/options.h"

namespace quill::companion {

// By the readers' names, in UTF-8, in the order of code points. Damaged lines are reported and left
// out. Throws StatementFailed if nothing can be compared: texts differ, a tag lacks the name of its
// reader, or there are fewer than two readers.
std::map<std::string, Reading> ReadingsOf(const Options& options, Console& console);

}  // namespace quill::companion
