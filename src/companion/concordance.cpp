#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "companion/command.h"
#include "companion/csv.h"
#include "companion/one_line.h"
#include "companion/output.h"
#include "companion/tagged_text.h"

namespace quill::companion {
namespace {

std::string Concordance(const TaggedText& text, Position width) {
  std::vector<const Tag*> tags;
  for (const TagList& list : text.lists) {
    for (const Tag& tag : list.tags) tags.push_back(&tag);
  }
  std::stable_sort(tags.begin(), tags.end(), [](const Tag* a, const Tag* b) {
    return std::tie(a->span.begin, a->span.end) < std::tie(b->span.begin, b->span.end);
  });
  std::string table;
  for (const Tag* const tag : tags) {
    const Position from = std::max<Position>(tag->span.begin - width, 0);
    const Position to = std::min(tag->span.end + width, text.text.Length());
    AppendCsvRow(
        table, {PathText(text.path), std::to_string(tag->line), std::to_string(tag->span.begin),
                std::to_string(tag->span.end), InOneLine(text.text.At({from, tag->span.begin})),
                InOneLine(text.text.At(tag->span)), InOneLine(text.text.At({tag->span.end, to}))});
  }
  return table;
}

}  // namespace

void RunConcordance(const Options& options, Console& console) {
  Output output(options, console);
  output.Write("file,line,start,end,left,term,right\r\n");
  ForEachSoundText(options, console,
                   [&](const TaggedText& text) { output.Write(Concordance(text, options.width)); });
  output.Finish();
}

}  // namespace quill::companion
