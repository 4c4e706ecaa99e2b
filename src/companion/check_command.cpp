#include "companion/check.h"
#include "companion/command.h"
#include "companion/csv.h"
#include "companion/output.h"

namespace quill::companion {
namespace {

std::string LineOf(const std::string& file, const Finding& finding) {
  return file + ":" + std::to_string(finding.line) + ": " + finding.code + ": " + finding.message +
         "\n";
}

// As in tag lines: from 1, both ends included.
std::string First(const std::optional<Range>& range) {
  return range ? std::to_string(range->begin + 1) : "";
}
std::string Last(const std::optional<Range>& range) {
  return range && range->end >= 0 ? std::to_string(range->end) : "";
}

void AppendRow(std::string& table, const std::string& file, const Finding& finding) {
  AppendCsvRow(table, {PathText(file), std::to_string(finding.line), finding.id, finding.code,
                       First(finding.place), Last(finding.place), finding.term,
                       First(finding.found), Last(finding.found), finding.message});
}

}  // namespace

void RunCheck(const Options& options, Console& console) {
  Output output(options, console);
  if (options.csv)
    output.Write("file,line,id,code,start,end,term,found_start,found_end,message\r\n");
  ForEachText(options, console, [&](const TaggedText& text) {
    std::string report;
    for (const TagList& list : text.lists) {
      for (const Finding& finding : Check(text.text, list)) {
        console.Found();
        if (options.csv) {
          AppendRow(report, list.path, finding);
        } else {
          report += LineOf(list.path, finding);
        }
      }
    }
    output.Write(report);
  });
  output.Finish();
}

}  // namespace quill::companion
