#include "companion/tagged_text.h"

#include <filesystem>
#include <optional>

#include "disk/posix_disk.h"
#include "disk/statement_failed.h"
#include "disk/text_family.h"
#include "rtf/reader.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

std::vector<RaisedRun> RaisedRunsOf(const Document& document) {
  std::vector<RaisedRun> runs;
  const FormatNumbers& ids = document.FormatIds();
  for (std::size_t begin = 0, end = 0; begin < ids.size(); begin = end) {
    end = ids.EndOfStretch(begin, ids.size());
    const Attributes& look = document.Formats()[ids[begin]].now;
    if (look.offset <= 0) continue;
    const Range range{static_cast<Position>(begin), static_cast<Position>(end)};
    if (!runs.empty() && runs.back().range.end == range.begin &&
        runs.back().colour == look.colour) {
      runs.back().range.end = range.end;
    } else {
      runs.push_back({range, look.colour});
    }
  }
  return runs;
}

// A text without a list has no tags, but a list given by name must exist.
std::optional<TagList> ReadList(const std::string& path, bool named) {
  const auto status = std::filesystem::symlink_status(path);
  if (!named && status.type() == std::filesystem::file_type::not_found) {
    return ParseTagList(path, "");
  }
  return ParseTagList(path, PosixDisk().Read(path));
}

void CompleteIn(const Options& options, Console& console, TaggedText& text) {
  for (const std::string& path : ListsOf(text.path, options)) {
    try {
      text.lists.push_back(*ReadList(path, !options.lists.empty()));
    } catch (const StatementFailed& failure) {
      console.Fail(failure.what());
    }
  }
}

}  // namespace

Text TextOf(const Document& document) { return {document.Text(), RaisedRunsOf(document)}; }

Text ReadText(const std::string& path) {
  const std::optional<Document> document = rtf::Read(PosixDisk().Read(path));
  if (!document) throw StatementFailed(path + " is no text");
  return TextOf(*document);
}

std::string ListBeside(const std::string& path) { return EncodePath(TagListOf(DecodePath(path))); }

std::vector<std::string> ListsOf(const std::string& file, const Options& options) {
  return options.lists.empty() ? std::vector{ListBeside(file)} : options.lists;
}

void ForEachText(const Options& options, Console& console,
                 const std::function<void(TaggedText&)>& visit) {
  for (const std::string& path : options.files) {
    TaggedText text;
    text.path = path;
    try {
      if (options.lists.empty() && ListBeside(path) == path) {
        throw StatementFailed(path + " is a tag list; name the text that it belongs to");
      }
      text.text = ReadText(path);
    } catch (const StatementFailed& failure) {
      console.Fail(failure.what());
      continue;
    }
    CompleteIn(options, console, text);
    if (!text.lists.empty()) visit(text);
  }
}

void ForEachSoundText(const Options& options, Console& console,
                      const std::function<void(TaggedText&)>& visit) {
  ForEachText(options, console, [&](TaggedText& text) {
    for (TagList& list : text.lists) {
      LeaveOutBeyond(list, text.text.Length());
      for (const Damage& damage : list.damages) {
        console.Complain(list.path, damage.line, "damaged: " + damage.what);
      }
    }
    visit(text);
  });
}

}  // namespace quill::companion
