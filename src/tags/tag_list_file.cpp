#include "tags/tag_list_file.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "disk/text_family.h"
#include "disk/text_lines.h"
#include "text/unicode.h"
#include "workbench/form1.h"
#include "workbench/guidance.h"

namespace quill {
namespace {

// The lines of the file that the user gave up.
std::string TakenLines(const Form1& form) {
  std::string bytes;
  for (const std::u32string& line : form.TakenTags.Of(form.WorkState.TagListFile)) {
    bytes += EncodeLine(line) + "\r\n";
  }
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

// Whether each line of a file is known byte for byte: the usual case, settled without decoding.
bool HoldsTheseBytesOnly(std::string_view file, std::string_view known) {
  std::unordered_map<std::string_view, int> left;
  for (const std::string_view line : RawLines(known)) ++left[line];
  const std::vector<std::string_view> lines = RawLines(file);
  return std::all_of(lines.begin(), lines.end(), [&](std::string_view line) {
    const auto found = left.find(line);
    return found != left.end() && found->second-- > 0;
  });
}

// Whether a file has an unknown line, or a known one more often. Compares lines of the file, not
// tags: a tag may be several lines.
bool HoldsForeignLine(std::string_view file, std::string_view known) {
  if (HoldsTheseBytesOnly(file, known)) return false;
  std::vector<std::u32string> there = DecodeLines(file);
  std::vector<std::u32string> expected = DecodeLines(known);
  std::sort(there.begin(), there.end());
  std::sort(expected.begin(), expected.end());
  return !std::includes(expected.begin(), expected.end(), there.begin(), there.end());
}

void DeriveTagListFile(Form1& form) {
  form.WorkState.TagListFile = TagListOf(form.WorkState.TextBaseFile);
}

// Returns the path of the file.
std::string MakeIfMissing(const Form1& form) {
  std::string path = EncodePath(form.WorkState.TagListFile.Get());
  form.TheDisk().CreateIfMissing(path);
  return path;
}

}  // namespace

void LoadTagList(Form1& form) {
  DeriveTagListFile(form);
  const std::string path = MakeIfMissing(form);
  form.TakenTags.Forget();
  for (const std::u32string& line : DecodeLines(form.TheDisk().Read(path))) {
    form.TagList.AddItem(line);
  }
  form.User_Dialogue.Text = PreProcessIntro();
}

void EnsureTagListFile(Form1& form) {
  DeriveTagListFile(form);
  MakeIfMissing(form);
  form.User_Dialogue.Text = ProcessGuidance();
}

void TakeSelectedTag(Form1& form) {
  const int index = form.TagList.ListIndex;
  const std::u32string line = form.TagList.List(index);
  form.WorkState.CurrentTag = line;
  form.TakenTags.Add(form.WorkState.TagListFile, line);
  form.TagList.RemoveItem(index);
}

void AppendGeneratedTag(Form1& form) {
  form.TheDisk().AppendLine(EncodePath(form.WorkState.TagListFile.Get()),
                            EncodeLine(form.WorkState.GeneratedTag.Get()));
}

void RewriteTagListFile(Form1& form) {
  std::string bytes;
  for (const std::u32string& line : form.TagList.Items()) bytes += EncodeLine(line) + "\r\n";
  bytes.insert(0, MarkInFrontOf(bytes));
  const std::string path = MakeIfMissing(form);
  if (HoldsForeignLine(form.TheDisk().Read(path), bytes + TakenLines(form))) {
    form.TheDisk().ReplaceKeepingOld(path, bytes);
  } else {
    form.TheDisk().Replace(path, bytes);
  }
  form.TakenTags.Forget();
}

}  // namespace quill
