// The rules of the tag editor, on every path of their tables.
#include <gtest/gtest.h>

#include "support/workbench.h"
#include "tags/tag_editor.h"

namespace quill::test {
namespace {

struct TagEditor : testing::Test, Workbench {
  TagEditor() {
    ShowText(U"now", "...");
    form.ClassCombo.Enabled = true;
  }
};

constexpr int kTrue = 1;
constexpr int kFalse = 0;
constexpr int kUnchanged = -1;

TEST_F(TagEditor, OpensTheButtonOnEveryPath) {
  struct Row {
    const char32_t* type;
    const char32_t* mode;
    const char32_t* value;
    const char32_t* reference;
    int generate;
    int refTag;  // with a granularity chosen
  };
  const Row rows[] = {
      {U"Type", U"absolute ", U"1914", U"Reference Tag", kTrue, kUnchanged},
      {U"Type", U"absolute ", U"", U"x", kTrue, kUnchanged},
      {U"Type", U"absolute ", U"Value ?", U"x", kUnchanged, kUnchanged},
      {U"Type", U"relative", U"1914", U"x", kUnchanged, kUnchanged},
      {U"Type", U"Mode", U"1914", U"x", kUnchanged, kUnchanged},
      {U"Type", U"absolute", U"1914", U"x", kUnchanged, kUnchanged},
      {U"at", U"absolute ", U"1914", U"Reference Tag", kTrue, kTrue},
      {U"at", U"absolute ", U"Value ?", U"x", kFalse, kTrue},
      {U"at", U"absolute ", U"Value ?", U"Reference Tag", kFalse, kTrue},
      {U"while", U"relative", U"Value ?", U"x", kTrue, kTrue},
      {U"while", U"relative", U"1914", U"Reference Tag", kFalse, kTrue},
      {U"", U"Mode", U"1914", U"x", kFalse, kTrue},
      {U"at", U"absolute", U"1914", U"x", kFalse, kTrue},  // no trailing blank: another mode
  };
  for (const Row& row : rows) {
    for (const bool before : {false, true}) {
      form.TypeCombo.Text = row.type;
      form.ModeCombo.Text = row.mode;
      form.ValBox.Text = row.value;
      form.RefBox.Text = row.reference;
      form.GranCombo.Text = U"d ";
      form.Generate_Tag.Enabled = before;
      form.RefTag.Enabled = before;
      ApplyTagEditorRules(form);
      const std::size_t number = static_cast<std::size_t>(&row - rows);
      EXPECT_EQ(form.Generate_Tag.Enabled, row.generate == kUnchanged ? before : row.generate == 1)
          << "row " << number;
      EXPECT_EQ(form.RefTag.Enabled, row.refTag == kUnchanged ? before : row.refTag == 1)
          << "row " << number;
    }
  }
}

TEST_F(TagEditor, ResetRunsTheRulesOnlyThroughTheValueBox) {
  for (const bool valueFilled : {false, true}) {
    form.ClassCombo.Enabled = true;
    form.Generate_Tag.Enabled = true;
    form.RefTag.Enabled = true;
    form.RefFrame.Visible = true;
    if (valueFilled) form.ValBox.Text = U"x";
    form.ClassCombo.Enabled = true;
    form.RefFrame.Visible = true;
    ResetTagEditor(form);
    EXPECT_EQ(form.ClassCombo.Enabled, !valueFilled);
    EXPECT_EQ(form.RefFrame.Visible, !valueFilled);
    EXPECT_TRUE(form.RefTag.Enabled);
    EXPECT_FALSE(form.Generate_Tag.Enabled);
  }
}

}  // namespace
}  // namespace quill::test
