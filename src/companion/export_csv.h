// The table of tags, for statistics.
#pragma once

#include "companion/command.h"

namespace quill::companion {

void ExportCsv(const Options& options, Console& console);

}  // namespace quill::companion
