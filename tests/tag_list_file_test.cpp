// Rewriting the tag list file: which lines the user gave up, and which are kept beside it.
#include <gtest/gtest.h>

#include "support/workbench.h"
#include "tags/tag_list_file.h"
#include "text/unicode.h"
#include "workbench/failure.h"

namespace quill::test {
namespace {

using Cancel = ScriptedDialogs::Cancel;

struct TagListRewriting : testing::Test, Workbench {
  TagListRewriting() {
    disk.files["x.tbf"] = disk.files["y.tbf"] = "{\\rtf1 text}";
    disk.files["x.tlf"] = "a\r\nb\r\nc\r\n";
    Open({U"x.tbf"});
  }

  void Take(int item) {
    form.TagList.ListIndex = item;
    TakeSelectedTag(form);
  }
  // Writes as another program would.
  void Write(const std::string& line) { disk.files["x.tlf"] += line; }
  bool Kept() const { return disk.Has("x.tlf~"); }
};

TEST_F(TagListRewriting, FollowsTheList) {
  Take(1);
  EXPECT_EQ(form.WorkState.CurrentTag, U"b");
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], "a\r\nc\r\n");
  form.TagList.ListIndex = 0;
  TakeSelectedTag(form);
  Take(0);
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], "");
  EXPECT_FALSE(Kept());
  EXPECT_THROW(TakeSelectedTag(form), StatementFailed);
}

TEST_F(TagListRewriting, ATagOfTwoLinesIsTheUsersOwn) {
  form.TagList.AddItem(U"d\ne");
  Write("d\r\ne\r\n");
  RewriteTagListFile(form);
  Take(3);
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], "a\r\nb\r\nc\r\n");
  EXPECT_FALSE(Kept());
}

TEST_F(TagListRewriting, ReadsTheFileAsOpeningDoes) {
  disk.files["x.tlf"] = "\xEF\xBB\xBF\n\xE4\rb";
  Open({U"x.tbf"});
  ASSERT_EQ(form.TagList.ListCount(), 3);
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], "\r\n\u00E4\r\nb\r\n");
  EXPECT_FALSE(Kept());
}

struct Stranger {
  const char* about;
  void (*happens)(TagListRewriting& bench);
};

// Each of these leaves a line in the file that the list lacks and the user never gave up.
const Stranger kStrangers[] = {
    {"another program added a line", [](TagListRewriting& b) { b.Write("d\r\n"); }},
    {"another program added a line and broke off", [](TagListRewriting& b) { b.Write("d"); }},
    {"another program added a line that is there already",
     [](TagListRewriting& b) { b.Write("a\r\n"); }},
    {"a line that was taken out and rewritten away came back",
     [](TagListRewriting& b) {
       b.Take(0);
       RewriteTagListFile(b.form);
       b.Write("a\r\n");
     }},
    {"an opening was cancelled", [](TagListRewriting& b) { b.Open({Cancel()}); }},
    {"a taken line was loaded again before an opening was cancelled",
     [](TagListRewriting& b) {
       b.Take(0);
       b.Open({U"x.tbf"});
       b.Open({Cancel()});
       b.form.TagList.AddItem(U"b");
       b.form.TagList.AddItem(U"c");
     }},
    {"the line was taken out of another text's list",
     [](TagListRewriting& b) {
       b.disk.files["y.tlf"] = "d\r\n";
       b.Open({U"y.tbf"});
       b.Take(0);
       b.Open({U"x.tbf"});
       b.Write("d\r\n");
     }},
    {"the line was taken out under another name of the text",
     [](TagListRewriting& b) {
       b.dialogs.answers = {U"y.tbf"};
       b.program.Click(b.form.mnuFileSave);
       b.Take(0);
       b.dialogs.answers = {U"x.tbf"};
       b.program.Click(b.form.mnuFileSave);
     }},
    {"the list box holds no more",
     [](TagListRewriting& b) {
       for (int i = 3; i <= ListBox::kMostItems; ++i) b.Write("a\r\n");
       b.Open({U"x.tbf"});
     }},
};

TEST(TagListRewritingKeeps, WhatStrangersWrote) {
  struct Bench : TagListRewriting {
    void TestBody() override {}
  };
  for (const Stranger& stranger : kStrangers) {
    Bench bench;
    stranger.happens(bench);
    const std::string before = bench.disk.files["x.tlf"];
    RewriteTagListFile(bench.form);
    EXPECT_EQ(bench.disk.files["x.tlf~"], before) << stranger.about;
    std::string list;
    for (const std::u32string& line : bench.form.TagList.Items()) list += ToUtf8(line) + "\r\n";
    EXPECT_EQ(bench.disk.files["x.tlf"], list) << stranger.about;
  }
}

TEST_F(TagListRewriting, AFailedRewriteForgetsNothing) {
  Take(0);
  for (const DiskCall call : {DiskCall::kCreateIfMissing, DiskCall::kRead, DiskCall::kReplace}) {
    disk.Refuse(call, "x.tlf");
    EXPECT_THROW(RewriteTagListFile(form), StatementFailed);
    disk.Allow();
  }
  EXPECT_EQ(disk.files["x.tlf"], "a\r\nb\r\nc\r\n");
  RewriteTagListFile(form);
  EXPECT_EQ(disk.files["x.tlf"], "b\r\nc\r\n");
  EXPECT_FALSE(Kept());
}

}  // namespace
}  // namespace quill::test
