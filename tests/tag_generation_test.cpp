// Generating a tag when its file or its list fails.
#include <gtest/gtest.h>

#include "support/workbench.h"
#include "workbench/guidance.h"

namespace quill::test {
namespace {

struct TagGeneration : testing::Test, Workbench {
  TagGeneration() {
    ShowText(U"one two three", "B...BBB.....B");
    form.WorkState.TextBaseFile = U"x.tbf";
    form.StartPosition.Text = U"5";
    form.EndPosition.Text = U"7";
    form.marked_term.Text = U"two";
    form.ClassCombo.Text = U"lexematic";
    form.OperatorCombo.Text = U"a_operator";
    form.ModeCombo.Text = U"absolute ";
    form.TypeCombo.Text = U"at";
    form.GranCombo.Text = U"d ";
    form.ValBox.Text = U"1";
  }
};

TEST_F(TagGeneration, CarriesOnWhereTheFileCannotBeWritten) {
  disk.Refuse(DiskCall::kCreateIfMissing, "x.tlf");
  disk.Refuse(DiskCall::kAppendLine, "x.tlf");
  program.Click(form.Generate_Tag);
  EXPECT_EQ(form.TagList.ListCount(), 1);
  EXPECT_EQ(Drawing(text), "B...aaa.....b");
  EXPECT_EQ(text.Selection(), (Range{0, 0}));
  EXPECT_FALSE(form.User_Dialogue.Text == ProcessGuidance());
  EXPECT_EQ(form.WorkState.TagListFile, U"x.tlf");
}

TEST_F(TagGeneration, CarriesOnWhereTheListIsFull) {
  form.TagList.AddItems(std::vector<std::u32string>(ListBox::kMostItems, U"t_op(6\\"));
  program.Click(form.Generate_Tag);
  EXPECT_EQ(form.TagList.ListCount(), ListBox::kMostItems);
  EXPECT_TRUE(disk.files["x.tlf"].starts_with("t_op(7\\ 5\\ 7\\ two\\"));
  EXPECT_EQ(Drawing(text), "B...aaa.....b");
  EXPECT_EQ(text.Doc().At(4).offset, 25);
}

}  // namespace
}  // namespace quill::test
