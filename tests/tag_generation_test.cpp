// Generating and editing tags: numbers, list, file, and the span in the text.
#include <gtest/gtest.h>

#include "info/guidance.h"
#include "support/workbench.h"
#include "tags/tag_generation.h"
#include "tags/tag_list_file.h"

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
    form.RefTagStart.Text = U" ";
    form.RefTagStop.Text = U" ";
  }

  void FillList(std::initializer_list<int> numbers) {
    form.TagList.Clear();
    for (const int number : numbers) form.TagList.AddItem(Line(number));
  }
  static std::u32string Line(int number) {
    return U"t_op(" + DecimalText(number) +
           U"\\ 5\\ 7\\ two\\ S\\ U\\ lexematic\\ a_operator\\ absolute \\ at\\ d \\ 1\\ Reference "
           U"Tag\\  \\   )";
  }
  std::string Numbers() const {
    std::string numbers;
    for (const std::u32string& line : form.TagList.Items()) {
      for (const char32_t c : line.substr(5, line.find(U'\\') - 5)) numbers += static_cast<char>(c);
      numbers += ' ';
    }
    return numbers;
  }
};

constexpr std::u32string_view kTag =
    U"t_op(1\\ 5\\ 7\\ two\\ Session-ID\\ User-ID\\ lexematic\\ a_operator\\ absolute \\ at\\ d \\ "
    U"1\\ Reference Tag\\  \\   )";

TEST_F(TagGeneration, RaisesTheTermAndStoresTheTag) {
  form.RefFrame.Visible = true;
  program.Click(form.Generate_Tag);
  EXPECT_TRUE(form.WorkState.GeneratedTag == kTag);
  EXPECT_TRUE(form.TaggedString.Text == kTag);
  EXPECT_EQ(form.TaggedString.ForeColor.Get(), RGB(0, 0, 255));
  EXPECT_TRUE(form.ID.Text == U"1");
  EXPECT_TRUE(form.TagList.List(0) == kTag);
  EXPECT_EQ(form.TagList.ListIndex, -1);
  EXPECT_EQ(disk.files["x.tlf"],
            "t_op(1\\ 5\\ 7\\ two\\ Session-ID\\ User-ID\\ lexematic\\ a_operator\\ absolute \\ "
            "at\\ d \\ 1\\ Reference Tag\\  \\   )\r\n");
  EXPECT_EQ(Drawing(text), "B...aaa.....b");
  EXPECT_GT(text.Doc().At(4).offset, 0);
  EXPECT_EQ(text.Doc().At(7).offset, 0);
  EXPECT_EQ(text.Selection(), (Range{0, 0}));
  EXPECT_EQ(form.Focus(), &text);
  EXPECT_FALSE(form.RefFrame.Visible);
  EXPECT_TRUE(form.User_Dialogue.Text == ProcessGuidance());
  EXPECT_EQ(form.WorkState.TagStart.Number(), 5);
  EXPECT_EQ(form.WorkState.TagEnd.Number(), 7);
  EXPECT_TRUE(form.Generate_Tag.Enabled);
}

TEST_F(TagGeneration, IsRefusedSilentlyWithoutBothPositions) {
  for (TextBox* box : {&form.StartPosition, &form.EndPosition}) {
    const std::u32string filled = box->Text;
    box->Text = box == &form.StartPosition ? U"Start" : U"End";
    program.Click(form.Generate_Tag);
    EXPECT_EQ(form.TagList.ListCount(), 0);
    EXPECT_TRUE(form.WorkState.GeneratedTag.IsEmpty() && form.WorkState.NextTagID.IsEmpty());
    box->Text = filled;
  }
  EXPECT_TRUE(disk.files.empty());
}

TEST_F(TagGeneration, NumbersFollowTheLastLine) {
  struct Row {
    std::initializer_list<int> before;
    int edited;   // index, -1 for a new tag
    int removed;  // index of a line removed first, -1 for none
    const char* after;
  };
  const Row rows[] = {
      {{}, -1, -1, "1 "},
      {{1, 2, 3, 4}, -1, -1, "1 2 3 4 5 "},
      {{1, 2, 3, 4}, 1, -1, "1 3 4 5 "},
      {{1, 2, 3, 4}, 3, -1, "1 2 3 4 "},
      {{1}, 0, -1, "1 "},
      {{1, 2, 3, 4}, -1, 3, "1 2 3 4 "},
      {{1, 2, 3, 4}, -1, 1, "1 3 4 5 "},
      {{9, 2}, -1, -1, "9 2 3 "},
  };
  for (const Row& row : rows) {
    FillList(row.before);
    if (row.removed >= 0) form.TagList.RemoveItem(row.removed);
    form.TagList.ListIndex = row.edited;
    program.Click(form.Generate_Tag);
    EXPECT_EQ(Numbers(), row.after);
    EXPECT_EQ(form.TagList.ListIndex, -1);
    if (row.edited >= 0) {
      EXPECT_TRUE(form.WorkState.CurrentTag == Line(std::data(row.before)[row.edited]));
    }
  }
}

TEST_F(TagGeneration, ALastLineWithoutANumberKeepsTheFormerOne) {
  form.TagList.AddItem(U"no tag");
  AssignNextTagID(form);
  EXPECT_TRUE(form.WorkState.NextTagID.IsEmpty());
  program.Click(form.Generate_Tag);
  EXPECT_TRUE(form.ID.Text == U"");
  form.WorkState.NextTagID = 7;
  program.Click(form.Generate_Tag);  // the last line is now one with an empty number
  EXPECT_TRUE(form.ID.Text == U"7");
}

TEST_F(TagGeneration, ColoursFollowTheOperatorAndWarnInMagenta) {
  struct Row {
    const char* about;
    const char32_t* klass;
    const char32_t* operatorText;
    const char32_t* type;
    const char32_t* value;
    Colour tagged;
    const char* drawing;
  };
  const Colour kBlue = RGB(0, 0, 255);
  const Colour kRed = RGB(255, 0, 0);
  const Colour kMagenta = RGB(255, 0, 255);
  const Row rows[] = {
      {"kind A", U"lexematic", U"a_operator", U"at", U"1", kBlue, "B...aaa.....b"},
      {"kind B", U"lexematic", U"b_operator", U"at", U"1", kRed, "B...bbb.....b"},
      {"no class", U"Class", U"b_operator", U"at", U"1", kMagenta, "B...bbb.....b"},
      {"no type", U"lexematic", U"a_operator", U"Type", U"1", kMagenta, "B...aaa.....b"},
      {"another operator keeps both colours", U"lexematic", U"Operator", U"at", U"1", kMagenta,
       "B...aaa.....b"},
      {"the shown placeholder of the value is no warning", U"lexematic", U"b_operator", U"at",
       U"Value ?", kRed, "B...bbb.....b"},
      {"that without its blank is", U"lexematic", U"b_operator", U"at", U"Value?", kMagenta,
       "B...bbb.....b"},
      {"a word for the operator that no list holds", U"lexematic", U"Function", U"at", U"1",
       kMagenta, "B...bbb.....b"},
  };
  for (const Row& row : rows) {
    form.ClassCombo.Text = row.klass;
    form.OperatorCombo.Text = row.operatorText;
    form.TypeCombo.Text = row.type;
    form.ValBox.Text = row.value;
    Generate_Tag_Click(form);
    EXPECT_EQ(form.TaggedString.ForeColor.Get(), row.tagged) << row.about;
    EXPECT_EQ(Drawing(text), row.drawing) << row.about;
  }
  form.ModeCombo.Text = U"Order";
  form.OperatorCombo.Text = U"a_operator";
  Generate_Tag_Click(form);
  EXPECT_EQ(form.TaggedString.ForeColor.Get(), kMagenta);
}

TEST_F(TagGeneration, CarriesOnWhereTheFileCannotBeWritten) {
  disk.Refuse(DiskCall::kCreateIfMissing, "x.tlf");
  disk.Refuse(DiskCall::kAppendLine, "x.tlf");
  program.Click(form.Generate_Tag);
  EXPECT_EQ(form.TagList.ListCount(), 1);
  EXPECT_EQ(Drawing(text), "B...aaa.....b");
  EXPECT_EQ(text.Selection(), (Range{0, 0}));
  EXPECT_FALSE(form.User_Dialogue.Text == ProcessGuidance());
  EXPECT_TRUE(form.WorkState.TagListFile == U"x.tlf");
}

TEST_F(TagGeneration, AnEditLeavesTheOldLineInTheFileUntilARewrite) {
  program.Click(form.Generate_Tag);
  const std::string first = disk.files["x.tlf"];
  form.TagList.ListIndex = 0;
  form.marked_term.Text = U"t\nwo";
  program.Click(form.Generate_Tag);
  const std::string second = disk.files["x.tlf"].substr(first.size());
  EXPECT_EQ(disk.files["x.tlf"], first + second);
  EXPECT_NE(second.find("\\ t\r\nwo\\ "), std::string::npos);  // two lines of the file
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], second);
  EXPECT_FALSE(disk.Has("x.tlf~"));
}

}  // namespace
}  // namespace quill::test
