#include "companion/command.h"
#include "companion/export_csv.h"

namespace quill::companion {

void RunExport(const Options& options, Console& console) { ExportCsv(options, console); }

}  // namespace quill::companion
