#include "companion/command.h"
#include "companion/export_csv.h"
#include "companion/export_folder.h"

namespace quill::companion {

void RunExport(const Options& options, Console& console) {
  if (options.to == "jsonld") return ExportJsonLd(options, console);
  if (options.to == "xmi") return ExportXmi(options, console);
  ExportCsv(options, console);
}

}  // namespace quill::companion
