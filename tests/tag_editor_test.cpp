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

// What is enabled of the chain, and whether RefFrame is visible.
std::string OpenSteps(const Form1& form) {
  std::string open;
  const auto add = [&](bool on, const char* name) {
    if (on) open.append(open.empty() ? "" : " ").append(name);
  };
  add(form.ClassCombo.Enabled, "Class");
  add(form.OperatorCombo.Enabled, "Operator");
  add(form.ModeCombo.Enabled, "Mode");
  add(form.TypeCombo.Enabled, "Type");
  add(form.GranCombo.Enabled && form.ValBox.Enabled, "Gran+Val");
  add(form.RefFrame.Visible, "RefFrame");
  add(form.RefTag.Enabled, "RefTag");
  add(form.Generate_Tag.Enabled, "Generate");
  return open;
}

TEST_F(TagEditor, WalksAnAbsoluteTermThrough) {
  form.StartPosition.Text = U"1";
  ApplyTagEditorRules(form);
  EXPECT_EQ(OpenSteps(form), "Class");
  program.Pick(form.ClassCombo, 0);  // the row with the tab counts as a class
  EXPECT_EQ(OpenSteps(form), "Class Operator");
  program.Pick(form.OperatorCombo, 1);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode");
  program.Pick(form.ModeCombo, 1);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type");
  program.Pick(form.TypeCombo, 2);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefTag");
  program.Type(form.ValBox, U"!");
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefTag Generate");
  program.Enter(form.ValBox, U"Value ?");
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefTag");
  program.Enter(form.ValBox, U"");
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefTag Generate");
  program.Pick(form.OperatorCombo, 0);
  EXPECT_EQ(OpenSteps(form), "Class Operator Type Gran+Val RefTag Generate");
}

TEST_F(TagEditor, WalksARelativeTermThrough) {
  form.StartPosition.Text = U"1";
  ApplyTagEditorRules(form);
  program.Pick(form.ClassCombo, 1);
  program.Pick(form.OperatorCombo, 2);
  program.Pick(form.ModeCombo, 2);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type RefFrame");
  program.Pick(form.TypeCombo, 4);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefFrame");
  program.Pick(form.GranCombo, 5);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefFrame RefTag");
  form.RefBox.Text = U"the wedding";
  ApplyTagEditorRules(form);
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type Gran+Val RefFrame RefTag Generate");
  program.Pick(form.ModeCombo, 1);  // the reference stays, and so does the button
  EXPECT_TRUE(form.RefBox.Text == U"the wedding");
  EXPECT_EQ(OpenSteps(form), "Class Operator Mode Type RefTag Generate");
}

TEST_F(TagEditor, TypesDependOnTheModesPickedSoFar) {
  using Rows = std::vector<std::u32string>;
  const Rows absolute = {U"Type", U"at", U"start", U"finishes"};
  const Rows relative = {U"Type", U"before", U"after", U"while", U"same"};
  const Rows absoluteAfterRelative = {U"Type", U"at", U"start", U"finishes", U"same"};
  const std::pair<int, Rows> picks[] = {
      {0, {}}, {1, absolute}, {0, absolute}, {2, relative}, {1, absoluteAfterRelative}};
  form.ModeCombo.Enabled = true;
  form.OperatorCombo.Text = U"a_operator";
  for (const auto& [row, expected] : picks) {
    program.Pick(form.ModeCombo, row);
    Rows found;
    for (int i = 0; i < form.TypeCombo.ListCount(); ++i) found.push_back(form.TypeCombo.List(i));
    EXPECT_TRUE(found == expected) << "after picking row " << row;
    EXPECT_TRUE(form.TypeCombo.Text == (expected.empty() ? U"" : U"Type"));
  }
}

TEST_F(TagEditor, PickingNoModeWhileThereAreNoTypesOpensTheValue) {
  form.ModeCombo.Enabled = true;
  program.Pick(form.ModeCombo, 0);
  EXPECT_FALSE(form.TypeCombo.Enabled);
  EXPECT_TRUE(form.GranCombo.Enabled);
  EXPECT_TRUE(form.ValBox.Enabled);
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
