// Tags that exist: bringing them back, finding them at the caret, referring to them, removing them.
#include <gtest/gtest.h>

#include "support/workbench.h"
#include "tags/tag_at_caret.h"
#include "tags/tag_record.h"
#include "tags/tag_removal.h"
#include "text/numbers.h"
#include "text/unicode.h"

namespace quill::test {
namespace {

std::u32string Line(int start, int end, const char32_t* term,
                    const char32_t* operatorText = U"a_operator") {
  const std::u32string first = DecimalText(start);
  const std::u32string last = DecimalText(end);
  TagFields fields;
  fields[TagField::kId] = U"1";
  fields[TagField::kStart] = first;
  fields[TagField::kEnd] = last;
  fields[TagField::kTerm] = term;
  fields[TagField::kSessionId] = U"S";
  fields[TagField::kUserId] = U"U";
  fields[TagField::kClass] = U"lexematic";
  fields[TagField::kOperator] = operatorText;
  fields[TagField::kMode] = U"absolute ";
  fields[TagField::kType] = U"at";
  fields[TagField::kGranularity] = U"d ";
  fields[TagField::kValue] = U"6";
  fields[TagField::kRefTerm] = U"Reference Tag";
  fields[TagField::kRefStart] = U" ";
  fields[TagField::kRefStop] = U" ";
  return ComposeTag(fields);
}

struct TagFlows : testing::Test, Workbench {
  TagFlows() {
    ShowText(U"one two three two", "...._______......");
    program.Click(form.mnuPostProcess);
    form.WorkState.TextBaseFile = U"x.tbf";
    form.WorkState.TagListFile = U"x.tlf";
  }

  void Fill(const std::vector<std::u32string>& lines) {
    form.TagList.Clear();
    for (const std::u32string& line : lines) form.TagList.AddItem(line);
  }
};

// --- Selection -------------------------------------------------------------------------------

TEST_F(TagFlows, WhatALineShowsInTheText) {
  const struct {
    const char* about;
    const char32_t* line;
    const char* drawing;  // with what is underlined now
    Range selection;
    bool refFrame;
    const char32_t* refStart;
  } kRows[] = {
      {"no reference",
       U"t_op(007\\ 5\\ 7\\ \\ \\ \\ \\ \\ relative\\ \\ \\ \\ R\\  \\   )",
       ".................",
       {4, 7},
       true,
       U"0"},
      {"a reference of nought",
       U"t_op(1\\ 5\\ 7\\ \\ \\ \\ \\ \\ absolute \\ \\ \\ \\ R\\ 0\\ 0 )",
       ".................",
       {4, 7},
       false,
       U"0"},
      {"a reference of an absolute tag",
       U"t_op(1\\ 5\\ 7\\ \\ \\ \\ \\ \\ absolute \\ \\ \\ \\ R\\ 1\\ 3 )",
       "___..............",
       {4, 7},
       false,
       U"1"},
      {"a typed mode",
       U"t_op(1\\ 5\\ 7\\ \\ \\ \\ \\ \\ Relative\\ \\ \\ \\ R\\  \\   )",
       "___..............",
       {4, 7},
       false,
       U"0"},
      {"a reference beyond the end",
       U"t_op(1\\ 5\\ 7\\ \\ \\ \\ \\ \\ relative\\ \\ \\ \\ R\\ 16\\ 99 )",
       "___............__",
       {4, 7},
       true,
       U"16"},
      {"a span that runs over the end",
       U"t_op(1\\ 15\\ 40\\ ",
       "___............__",
       {14, 17},
       false,
       U"0"},
      {"a span beyond the end",
       U"t_op(1\\ 400\\ 402\\ ",
       "___............__",
       {17, 17},
       false,
       U"0"},
      {"an end before the start", U"t_op(1\\ 7\\ 2\\ ", "___............__", {6, 6}, false, U"0"},
      {"a blank line", U"", "___............__", {0, 0}, false, U"0"},
      {"no tag", U"chapter one", "___............__", {0, 0}, false, U"0"},
      {"a backslash in the term shifts what follows",
       U"t_op(1\\ 1\\ 3\\ o\\ne\\ \\ \\ \\ \\ relative\\ \\ \\ \\ R\\ 5\\ 7 )",
       "___............__",
       {0, 3},
       false,
       U"0"},
  };
  ShowText(U"one two three two", ".................");
  for (const auto& row : kRows) {
    Fill({row.line});
    program.ClickItem(form.TagList, 0);
    program.ClickItem(form.TagList, 0);  // the same once more changes nothing
    EXPECT_EQ(Drawing(text), row.drawing) << row.about;
    EXPECT_EQ(text.Selection(), row.selection) << row.about;
    EXPECT_EQ(form.RefFrame.Visible.Get(), row.refFrame) << row.about;
    EXPECT_EQ(ToUtf8(form.RefTagStart.Text.Get()), ToUtf8(row.refStart)) << row.about;
    EXPECT_EQ(form.TaggedString.Text, row.line) << row.about;
    EXPECT_EQ(form.TagList.ListIndex, 0) << row.about;
    EXPECT_TRUE(form.ID.Text == CutTag(row.line)[TagField::kId]) << row.about;
  }
}

TEST_F(TagFlows, NoLineSelectedIsNoTag) {
  Fill({Line(1, 3, U"one")});
  program.ClickItem(form.TagList, 0);
  form.TagList.ListIndex = -1;
  EXPECT_EQ(form.marked_term.Text, U"one");
}

// --- The caret -------------------------------------------------------------------------------

struct CaretRow {
  const char* about;
  std::vector<std::u32string> lines;
  Position caret;
  int found;  // index, -1 for none
};

const CaretRow kCarets[] = {
    {"in front of the gap", {Line(5, 7, U"two")}, 3, -1},
    {"right before the first character", {Line(5, 7, U"two")}, 4, 0},
    {"inside", {Line(5, 7, U"two")}, 5, 0},
    {"right behind the last character", {Line(5, 7, U"two")}, 7, 0},
    {"behind that gap", {Line(5, 7, U"two")}, 8, -1},
    {"at the start of the text", {Line(1, 3, U"one")}, 0, 0},
    {"two tags on a term", {Line(9, 13, U"three"), Line(5, 7, U"x"), Line(5, 7, U"y")}, 6, 1},
    {"between neighbours", {Line(5, 7, U"two"), Line(1, 4, U"one ")}, 4, 0},
    {"between neighbours, the other order", {Line(1, 4, U"one "), Line(5, 7, U"two")}, 4, 0},
    {"only the second of two neighbours", {Line(1, 4, U"one "), Line(5, 7, U"two")}, 5, 1},
    {"overlapping", {Line(1, 13, U"one two three"), Line(5, 7, U"two")}, 6, 0},
    {"the last line of the list", {Line(1, 3, U"one"), U"", Line(15, 17, U"two")}, 17, 2},
    {"a line that cannot be cut, at the start",
     {Line(5, 7, U"two"), U"", Line(1, 3, U"one")},
     0,
     1},
    {"a line that cannot be cut, elsewhere", {U"", U"t_op(1", U"t_op(1\\ 2\\ 17"}, 2, -1},
    {"a start alone", {U"t_op(1\\ 1\\ "}, 0, 0},
    {"three separators are enough", {U"\\ 5\\ 7\\"}, 5, 0},
    {"fields with blanks", {U"t_op(1\\ 1 6\\  17 \\ x"}, 16, 0},
    {"a tag over the end of a text that shrank", {Line(17, 30, U"x")}, 17, 0},
    {"an end before the start", {Line(7, 5, U"x")}, 6, -1},
    {"nothing in the list", {}, 0, -1},
};

TEST_F(TagFlows, TheCheckFindsTheFirstLineAtTheCaret) {
  for (const CaretRow& row : kCarets) {
    SCOPED_TRACE(row.about);
    Fill(row.lines);
    program.Select(row.caret, 2);
    const Range before = text.Selection();
    program.Click(form.TagChecker);
    EXPECT_EQ(form.WorkState.CaretPos.Get(), before.begin);
    EXPECT_EQ(form.TagList.ListIndex, row.found);
    if (row.found >= 0) {
      EXPECT_EQ(form.TaggedString.Text, form.TagList.List(row.found));
    } else {
      EXPECT_EQ(form.TaggedString.Text, U" ");
      EXPECT_EQ(text.Selection(), before);
    }
  }
}

TEST_F(TagFlows, TheReferenceIsTheFirstLineAtTheCaret) {
  form.StartPosition.Text = U"5";
  form.EndPosition.Text = U"7";
  for (const CaretRow& row : kCarets) {
    SCOPED_TRACE(row.about);
    Fill(row.lines);
    program.Select(row.caret, 2);
    const Range before = text.Selection();
    const std::u32string selected = text.SelText();
    RefTag_Click(form);
    EXPECT_EQ(form.TagList.ListIndex, -1);
    if (row.found >= 0) {
      const TagSpan span = CutTagSpan(row.lines[static_cast<std::size_t>(row.found)]);
      EXPECT_EQ(form.RefTagStart.Text, DecimalText(span.start));
      EXPECT_EQ(form.RefTagStop.Text, DecimalText(span.end));
      EXPECT_EQ(text.SelText(), U"two");
    } else {
      EXPECT_EQ(form.RefBox.Text, selected);
      EXPECT_EQ(form.RefTagStart.Text, U" ");
      EXPECT_EQ(form.RefTagStop.Text, U" ");
      EXPECT_EQ(text.Selection(), before);
    }
  }
}

TEST_F(TagFlows, NothingIsFoundOutsidePostProcessingOrInAnEmptyText) {
  Fill({Line(1, 3, U"one")});
  const auto expectNothing = [&] {
    TagChecker_Click(form);
    EXPECT_EQ(form.TagList.ListIndex, -1);
    form.RefTagStart.Text = U"4";
    RefTag_Click(form);
    EXPECT_EQ(form.RefTagStart.Text, U" ");
  };
  form.PostFrame.Visible = false;
  expectNothing();
  form.PostFrame.Visible = true;
  ShowText(U" ", ".");
  expectNothing();
}

// --- Removal ---------------------------------------------------------------------------------

struct RemovalRow {
  const char* about;
  std::vector<std::u32string> lines;
  int removed;
  int other;            // index among the lines that are left, -1 for none
  const char* drawing;  // of a text that is all blue before
};

TEST_F(TagFlows, RemovalLooksForTheSameWord) {
  const std::u32string two = Line(5, 7, U"two");
  const RemovalRow kRows[] = {
      {"the only tag", {two}, 0, -1, "aaaa...aaaaaaaaaa"},
      {"another word", {two, Line(9, 13, U"three")}, 0, -1, "aaaa...aaaaaaaaaa"},
      {"another case", {Line(5, 7, U"Two"), two}, 1, -1, "aaaa...aaaaaaaaaa"},
      {"a longer word", {Line(1, 7, U"one two"), two}, 1, -1, "aaaa...aaaaaaaaaa"},
      {"a blank behind", {Line(5, 8, U"two "), two}, 1, -1, "aaaa...aaaaaaaaaa"},
      {"a second tag on the span",
       {two, Line(5, 7, U"two", U"b_operator")},
       0,
       0,
       "aaaabbbaaaaaaaaaa"},
      {"another occurrence", {two, Line(15, 17, U"two", U"b_operator")}, 0, 0, "aaaaaaaaaaaaaabbb"},
      {"an operator of no kind is red",
       {two, Line(15, 17, U"two", U"Operator")},
       0,
       0,
       "aaaaaaaaaaaaaabbb"},
      {"the first of two others",
       {Line(15, 17, U"two", U"b_operator"), two, Line(5, 7, U"two")},
       1,
       0,
       "aaaaaaaaaaaaaabbb"},
      {"the text tells the word, not the line",
       {Line(5, 7, U"gone"), Line(1, 3, U"gone")},
       0,
       -1,
       "aaaa...aaaaaaaaaa"},
      {"a line with four separators", {two, U"\\ 1\\ 3\\ two\\"}, 0, 0, "bbbaaaaaaaaaaaaaa"},
      {"a line with three", {two, U"\\ 1\\ 3\\ two"}, 0, -1, "aaaa...aaaaaaaaaa"},
      {"beyond the end", {Line(40, 42, U"two"), two}, 0, -1, "aaaaaaaaaaaaaaaaa"},
      {"over the end", {Line(15, 40, U"x"), Line(1, 3, U"two")}, 0, 0, "aaaaaaaaaaaaaaaaa"},
      {"a line that cannot be cut", {U"", two}, 0, -1, "aaaaaaaaaaaaaaaaa"},
      {"two of them: no term on either side", {U"", two, U"x"}, 0, 1, "aaaaaaaaaaaaaaaaa"},
  };
  for (const RemovalRow& row : kRows) {
    SCOPED_TRACE(row.about);
    ShowText(U"one two three two", "aaaaaaaaaaaaaaaaa");
    Fill(row.lines);
    program.ClickItem(form.TagList, row.removed);
    dialogs.answers = {Button::kCancel};
    program.Click(form.RemoveItem);
    EXPECT_EQ(form.TagList.ListCount(), static_cast<int>(row.lines.size()) - 1);
    EXPECT_EQ(form.TagList.ListIndex, row.other);
    EXPECT_EQ(Drawing(text), row.drawing);
    EXPECT_EQ(form.WorkState.CurrentTag, row.other >= 0
                                             ? form.TagList.List(row.other)
                                             : row.lines[static_cast<std::size_t>(row.removed)]);
    EXPECT_EQ(form.TaggedString.Text,
              row.other >= 0 ? form.TagList.List(row.other) : std::u32string(U" "));
  }
}

TEST_F(TagFlows, AFileThatCannotBeRewrittenIsNoMessage) {
  Fill({Line(5, 7, U"two")});
  program.ClickItem(form.TagList, 0);
  disk.files["x.tlf"] = "as it was";
  disk.Refuse(DiskCall::kReplace, "x.tlf");
  dialogs.answers = {Button::kOk};
  program.Click(form.RemoveItem);
  EXPECT_EQ(disk.files["x.tlf"], "as it was");
  EXPECT_FALSE(form.RemoveItem.Enabled);
  EXPECT_EQ(form.TagList.ListCount(), 0);
}

}  // namespace
}  // namespace quill::test
