#include "files/text_family.h"

#include <algorithm>

#include "info/guidance.h"
#include "text/unicode.h"
#include "workbench/form1.h"

namespace quill {

std::u32string BaseOf(const std::u32string& path) {
  constexpr std::size_t kCut = 4;
  return path.substr(0, path.size() - std::min(path.size(), kCut));
}

bool IsWorkingCopy(const std::u32string& path) { return path.ends_with(U"tbf"); }

void DeriveTagListFile(Form1& form) {
  form.WorkState.TagListFile = BaseOf(form.WorkState.TextBaseFile.Text()) + U".tlf";
}

void OpenSpecificDict(Form1& form) {
  form.WorkState.SpecificDictFile = BaseOf(form.WorkState.TextBaseFile.Text()) + U".spd";
  form.TheDisk().CreateIfMissing(EncodePath(form.WorkState.SpecificDictFile.Text()));
}

void EnsureTagListFile(Form1& form) {
  DeriveTagListFile(form);
  form.TheDisk().CreateIfMissing(EncodePath(form.WorkState.TagListFile.Text()));
  form.User_Dialogue.Text = ProcessGuidance();
}

}  // namespace quill
