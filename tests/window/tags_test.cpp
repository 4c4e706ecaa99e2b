// Tags on the real window: chosen from a long list, found at the caret, referred to, removed.
#include <QAbstractItemView>
#include <QScrollBar>
#include <QtTest>

#include "shown_window.h"
#include "user.h"

namespace quill::test {
namespace {

std::string TagLine(int start, int end, const std::string& term, const std::string& op = "a") {
  return "t_op(1\\ " + std::to_string(start) + "\\ " + std::to_string(end) + "\\ " + term +
         "\\ S\\ U\\ lexematic\\ " + op +
         "_operator\\ absolute \\ at\\ d \\ 6\\ Reference Tag\\  \\   )\r\n";
}

class TagsTest : public WindowTest {
 protected:
  // "one two three two", then lines of nothing, then "Later" at 3619 to 3623.
  void OpenTags(const std::string& lines) {
    std::string body = R"({\up1 one} {\up1 two} three {\up1 two}\par )";
    for (int i = 0; i < 200; ++i) body += "Nothing happened.\\par ";
    disk.files["x.tlf"] = lines;
    OpenText(body + "Later.");
    Choose("mnuPostProcess");
  }

  QAbstractItemView& List() const { return dynamic_cast<QAbstractItemView&>(Widget("TagList")); }

  void ExpectSelectionInView() {
    const QRect seen = View().viewport()->rect();
    QTextCursor begin(View().document());
    begin.setPosition(View().textCursor().selectionStart());
    EXPECT_TRUE(seen.contains(View().cursorRect(begin))) << "the beginning";
    EXPECT_TRUE(seen.contains(View().cursorRect())) << "the end";
  }
  void ExpectRowInView() {
    ASSERT_GE(form.TagList.ListIndex, 0);
    const QRect row = List().visualRect(List().model()->index(form.TagList.ListIndex, 0));
    EXPECT_GE(row.top(), 0);
    EXPECT_LE(row.bottom(), List().viewport()->height());
  }
  void ScrollTo(QAbstractScrollArea& view, int value) { view.verticalScrollBar()->setValue(value); }
};

TEST_F(TagsTest, AChosenTagIsScrolledIntoViewEveryTime) {
  OpenTags(TagLine(5, 7, "two") + TagLine(3619, 3623, "Later"));
  ASSERT_EQ(form.RichTextBox1.Text().substr(3618, 5), U"Later");
  ClickRow("TagList", 1);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"Later");
  ExpectSelectionInView();
  ExpectShown(window, form);
  ScrollTo(View(), 0);
  ClickRow("TagList", 1);
  ExpectSelectionInView();
  ClickRow("TagList", 0);
  EXPECT_EQ(View().verticalScrollBar()->value(), 0);
  ExpectSelectionInView();
}

TEST_F(TagsTest, ACheckShowsTermAndLine) {
  std::string lines = TagLine(5, 7, "two");
  for (int i = 0; i < 300; ++i) lines += TagLine(400, 402, "hap");
  OpenTags(lines + TagLine(9, 13, "three"));
  DragOver(10, 10);
  Press("TagChecker");
  EXPECT_EQ(form.TagList.ListIndex, 301);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"three");
  ExpectRowInView();
  ExpectSelectionInView();
  ExpectShown(window, form);
  ScrollTo(List(), 0);
  Press("TagChecker");  // the same line again
  ExpectRowInView();
  DragOver(15, 15);
  Press("TagChecker");
  EXPECT_EQ(form.TagList.ListIndex, -1);
  ExpectShown(window, form);
}

TEST_F(TagsTest, AReferenceIsFarAwayAndTheTermComesBackIntoView) {
  OpenTags(TagLine(3619, 3623, "Later") + TagLine(5, 7, "two"));
  ClickRow("TagList", 0);
  PickRow("ModeCombo", 2);
  PickRow("TypeCombo", 2);
  PickRow("GranCombo", 5);
  ScrollTo(View(), 0);
  DragOver(5, 6);
  Press("RefTag");
  EXPECT_EQ(form.RefBox.Text.Get(), U"two");
  EXPECT_TRUE(form.RichTextBox1.Doc().At(4).underline);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"Later");
  ExpectSelectionInView();
  EXPECT_EQ(FocusName(), "RichTextBox1");
  ExpectShown(window, form);
  Press("Generate_Tag");
  ASSERT_EQ(form.TagList.ListCount(), 2);
  EXPECT_TRUE(form.TagList.List(1).ends_with(U"relative\\ after\\ d \\ 6\\ two\\ 5\\ 7 )"));
  ExpectShown(window, form);
}

TEST_F(TagsTest, WhatEndsLeavesTheViewWhereItIs) {
  OpenTags(TagLine(5, 7, "Later") + TagLine(3619, 3623, "Later"));
  ClickRow("TagList", 1);
  QScrollBar& bar = *View().verticalScrollBar();
  const int there = bar.value();
  ASSERT_GT(there, 0);
  Press("Generate_Tag");
  ASSERT_EQ(form.RichTextBox1.SelStart, 0);
  EXPECT_EQ(bar.value(), there);
  dialogs.answers = {Button::kOk, Button::kOk};
  for (const int row : {1, 0}) {  // with another tag of the same word left, and without
    ClickRow("TagList", row);
    bar.setValue(there);
    Press("RemoveItem");
    EXPECT_EQ(bar.value(), there);
  }
  Press("FindBMarker");
  ASSERT_EQ(form.EndPosition.Text.Get(), U"End") << "no mark is left";
  EXPECT_EQ(bar.value(), there);
  Press("Restart_PP");
  EXPECT_EQ(bar.value(), 0);
  bar.setValue(there);
  Press("RichTextBox1");
  Key(Qt::Key_Home, Qt::ControlModifier);
  bar.setValue(there);
  Keys("x");
  ExpectSelectionInView();
}

TEST_F(TagsTest, ALongListFollowsSingleChanges) {
  std::string lines;
  for (int i = 0; i < 1000; ++i) lines += TagLine(5, 7, "line " + std::to_string(i));
  OpenTags(lines + TagLine(9, 13, std::string(300, 'W')));
  const int wide = List().horizontalScrollBar()->maximum();
  const QRect row = List().visualRect(List().model()->index(1000, 0));
  EXPECT_GE(row.width(), List().fontMetrics().horizontalAdvance(QString(300, 'W')));
  EXPECT_GE(wide, row.width() - List().viewport()->width());
  DragOver(10, 10);
  Press("TagChecker");
  ASSERT_EQ(form.TagList.ListIndex, 1000);
  ExpectRowInView();
  dialogs.answers = {Button::kCancel, Button::kCancel};
  Press("RemoveItem");
  EXPECT_LT(List().horizontalScrollBar()->maximum(), wide) << "the longest line is gone";
  ExpectShown(window, form);
  ScrollTo(List(), 500);
  ClickRow("TagList", 502);
  Press("Generate_Tag");
  EXPECT_EQ(form.TagList.ListCount(), 1000);
  EXPECT_EQ(List().verticalScrollBar()->value(), 500) << "the reader's place in the list";
  ExpectShown(window, form);
}

}  // namespace
}  // namespace quill::test
