// The dialogs of the real window, answered by keys.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "support/fakes.h"
#include "window/window_dialogs.h"

namespace quill::test {
namespace {

class MessageBoxTest : public testing::Test {
 protected:
  MessageBoxTest() { dialogs.Attach(window, form); }

  // Shows a box, lets `look` see it, then presses the keys in turn.
  int Answer(int buttons, std::initializer_list<Qt::Key> keys,
             const std::function<void(QMessageBox&)>& look = {}) {
    QTimer::singleShot(0, &window, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      if (look) look(*box);
      for (const Qt::Key key : keys) QTest::keyClick(box, key);
    });
    return dialogs.MsgBox(U"<b>Mark</b> this?", buttons, U"Confirm");
  }

  QWidget window;
  MemoryDisk disk;
  ScriptedDialogs unused;
  Form1 form{unused, disk};
  WindowDialogs dialogs;
};

TEST_F(MessageBoxTest, ShowsWhatIsGiven) {
  Answer(52, {Qt::Key_Return}, [](QMessageBox& box) {
    EXPECT_EQ(box.text(), "<b>Mark</b> this?");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), "Confirm");
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
  });
  Answer(16, {Qt::Key_Return},
         [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Critical); });
  Answer(33, {Qt::Key_Return},
         [](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::Question); });
}

TEST_F(MessageBoxTest, Answers) {
  EXPECT_EQ(Answer(0, {Qt::Key_Return}), 1);
  EXPECT_EQ(Answer(16, {Qt::Key_Escape}), 1);
  EXPECT_EQ(Answer(33, {Qt::Key_Return}), 1);
  EXPECT_EQ(Answer(33, {Qt::Key_Escape}), 2);
  EXPECT_EQ(Answer(52, {Qt::Key_Return}), 6) << "Yes is the default";
}

TEST_F(MessageBoxTest, AYesNoQuestionHasNoOtherWayOut) {
  EXPECT_EQ(Answer(52, {Qt::Key_Escape},
                   [](QMessageBox& box) {
                     box.close();
                     QTest::keyClick(&box, Qt::Key_Escape);
                     EXPECT_TRUE(box.isVisible());
                     QTimer::singleShot(0, &box, [&box] { box.button(QMessageBox::No)->click(); });
                   }),
            7);
}

TEST(Question, StandsBesideTheTextOrElseBesideTheTerm) {
  const QRect screen(0, 0, 1000, 700);
  const struct {
    const char* why;
    QRect text;
    QRect term;
    QPoint place;
  } kRows[] = {
      {"below the text", {10, 50, 901, 300}, {400, 100, 60, 20}, {360, 350}},
      {"wherever the term is", {10, 50, 901, 300}, {12, 300, 60, 20}, {360, 350}},
      {"not past the left edge", {-500, 50, 901, 300}, {12, 100, 60, 20}, {0, 350}},
      {"not past the right edge", {500, 50, 901, 300}, {880, 100, 60, 20}, {800, 350}},
      {"above a text that reaches down", {10, 200, 901, 450}, {400, 300, 60, 20}, {360, 100}},
      {"below the term in a text as high as the screen",
       {10, 30, 901, 650},
       {400, 100, 60, 20},
       {360, 180}},
      {"above it near the bottom", {10, 30, 901, 650}, {400, 600, 60, 20}, {360, 440}},
      {"close to it where it is high", {10, 30, 901, 650}, {400, 170, 60, 400}, {360, 570}},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(PlaceOfQuestion({200, 100}, row.text, row.term, screen), row.place) << row.why;
  }
}

}  // namespace
}  // namespace quill::test
