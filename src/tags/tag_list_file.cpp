#include "tags/tag_list_file.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "files/text_lines.h"
#include "text/unicode.h"
#include "workbench/form1.h"

namespace quill {
namespace {

// The lines of the file that the user gave up.
std::string TakenLines(const Form1& form) {
  std::string bytes;
  if (form.WorkState.TagListFile != form.TakenTags.file) return bytes;
  for (const std::u32string& line : form.TakenTags.lines) bytes += EncodeLine(line) + "\r\n";
  return bytes;
}

std::vector<std::string_view> RawLines(std::string_view bytes) {
  std::vector<std::string_view> lines;
  while (!bytes.empty()) {
    const std::size_t length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    lines.push_back(bytes.substr(0, length));
    bytes.remove_prefix(length);
  }
  return lines;
}

// Whether each line of a file is known byte for byte: the usual case, told without decoding.
bool HoldsTheseBytesOnly(std::string_view file, std::string_view known) {
  std::unordered_map<std::string_view, int> left;
  for (const std::string_view line : RawLines(known)) ++left[line];
  const std::vector<std::string_view> lines = RawLines(file);
  return std::all_of(lines.begin(), lines.end(), [&](std::string_view line) {
    const auto found = left.find(line);
    return found != left.end() && found->second-- > 0;
  });
}

// Whether a file holds a line that is not known, or holds it more often. Lines of files are
// compared, as a tag may be several of them.
bool HoldsForeignLine(std::string_view file, std::string_view known) {
  if (HoldsTheseBytesOnly(file, known)) return false;
  std::vector<std::u32string> there = DecodeLines(file);
  std::vector<std::u32string> expected = DecodeLines(known);
  std::sort(there.begin(), there.end());
  std::sort(expected.begin(), expected.end());
  return !std::includes(expected.begin(), expected.end(), there.begin(), there.end());
}

}  // namespace

void TakeSelectedTag(Form1& form) {
  const int index = form.TagList.ListIndex;
  const std::u32string line = form.TagList.List(index);
  form.WorkState.CurrentTag = line;
  const std::u32string file = form.WorkState.TagListFile.Text();
  if (form.TakenTags.file != file) form.TakenTags = {file, {}};
  form.TakenTags.lines.push_back(line);
  form.TagList.RemoveItem(index);
}

void AppendGeneratedTag(Form1& form) {
  form.TheDisk().AppendLine(EncodePath(form.WorkState.TagListFile.Text()),
                            EncodeLine(form.WorkState.GeneratedTag.Text()));
}

void RewriteTagListFile(Form1& form) {
  const std::string path = EncodePath(form.WorkState.TagListFile.Text());
  std::string bytes;
  for (const std::u32string& line : form.TagList.Items()) bytes += EncodeLine(line) + "\r\n";
  bytes.insert(0, MarkInFrontOf(bytes));
  form.TheDisk().CreateIfMissing(path);
  if (HoldsForeignLine(form.TheDisk().Read(path), bytes + TakenLines(form))) {
    form.TheDisk().ReplaceKeepingOld(path, bytes);
  } else {
    form.TheDisk().Replace(path, bytes);
  }
  form.TakenTags = {};
}

}  // namespace quill
