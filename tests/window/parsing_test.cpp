// The searches for operators on the real window: what is marked is shown, and a question leaves the
// term that it asks about in sight.
#include <QApplication>
#include <QMessageBox>
#include <QScrollBar>
#include <QtTest>
#include <functional>

#include "hands/dialog_hands.h"
#include "shown_window.h"
#include "text/marks.h"
#include "user.h"
#include "window/window_dialogs.h"

namespace quill::test {
namespace {

using Pressed = QMessageBox::StandardButton;

constexpr const char* kDictionary =
    "left\\    \\A< d >\r\nno\\    \\B< d >\r\nnot\\    \\A< d >\r\nzzz\\    \\B< d >\r\n";

class ParsingTest : public WindowTest {
 protected:
  ParsingTest() {
    boxes.Attach(window, form);
    dialogs.ask = [this](const MessageBox& box) {
      dialogHands.AtNext([this](QDialog& dialog) {
        DialogHands::Press(dialog, answer(dynamic_cast<QMessageBox&>(dialog)));
      });
      const Button pressed = boxes.MsgBox(box);
      dialogHands.Finish();
      return pressed;
    };
  }

  // "left", then so many lines that all say the same, then "left" again.
  void OpenStory(int lines, const std::string& line = "not yet") {
    std::string body = "\\qc left\\par ";
    for (int i = 0; i < lines; ++i) body += line + "\\par ";
    disk.files["x.spd"] = kDictionary;
    OpenText(body + "left\\par end");
    Press("Add_specific_parsing_list");
  }

  QRect SelectedPlace() const {
    QTextCursor begin = View().textCursor();
    begin.setPosition(View().textCursor().selectionStart());
    return View().cursorRect(begin).united(View().cursorRect());
  }

  // The whole selected term is visible, in its colour, and covered neither by a panel nor by the
  // box.
  void ExpectTermInSight(const QMessageBox& box) {
    const QRect place = SelectedPlace();
    QWidget& viewport = *View().viewport();
    EXPECT_TRUE(viewport.rect().contains(place));
    for (const QPoint corner : {place.topLeft(), place.bottomRight()}) {
      EXPECT_EQ(window.childAt(viewport.mapTo(&window, corner)), &viewport);
    }
    const QPoint onScreen = viewport.mapToGlobal(place.topLeft());
    EXPECT_FALSE(box.frameGeometry().intersects(QRect(onScreen, place.size())));
    const auto isAsked = [](const QColor& colour) { return colour == QColor(192, 0, 192); };
    EXPECT_FALSE(AreaOf(Painted(place), isAsked).isEmpty());
  }

  Attributes At(Position position) const { return form.RichTextBox1.Doc().At(position); }

  WindowDialogs boxes;
  DialogHands dialogHands;
  std::function<Pressed(QMessageBox&)> answer;  // looks at a box and chooses a button
};

TEST_F(ParsingTest, EachHitIsInSightWhileTheQuestionIsAsked) {
  OpenStory(120);
  std::vector<Pressed> buttons{QMessageBox::Yes, QMessageBox::No};
  std::size_t asked = 0;
  answer = [&](QMessageBox& box) {
    EXPECT_EQ(form.RichTextBox1.SelText(), U"left");
    ExpectTermInSight(box);
    ExpectShown(window, form);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << "the wheel would not reach the text";
    WheelTo(asked == 0 ? form.RichTextBox1.Length() : 0);
    QTest::mouseClick(&Widget("Text2"), Qt::LeftButton);
    QTest::keyClick(View().viewport(), Qt::Key_X);
    EXPECT_EQ(form.Text2.Text.Get(), U"Definition?");
    EXPECT_NE(window.focusWidget(), &Widget("Text2"));
    ExpectShown(window, form);
    return buttons.at(asked++);
  };
  ClickRow("Parse_listbox", 0);
  Press("Parse_3");
  EXPECT_EQ(asked, 2U);
  EXPECT_EQ(At(0), (Attributes{kMarkedA, true, false, 0}));
  EXPECT_EQ(At(5 + 8 * 120), Attributes());
  ExpectShown(window, form);
}

TEST_F(ParsingTest, AHitThatIsSelectedAlreadyIsScrolledBack) {
  OpenStory(120);
  DragOver(0, 4);
  ClickRow("Parse_listbox", 0);
  View().verticalScrollBar()->setValue(View().verticalScrollBar()->maximum() / 2);
  int asked = 0;
  answer = [&](QMessageBox& box) {
    ExpectTermInSight(box);
    ++asked;
    return QMessageBox::No;
  };
  Press("Parse_3");
  EXPECT_EQ(asked, 2);
}

TEST_F(ParsingTest, PanelsOverTheTextDoNotHideAHit) {
  for (const int lines : {6, 12, 60}) {
    SCOPED_TRACE(lines);
    OpenStory(lines);
    form.IDFrame.Visible = true;
    int asked = 0;
    answer = [&](QMessageBox& box) {
      ExpectTermInSight(box);
      EXPECT_TRUE(Widget("IDFrame").isVisible());
      ++asked;
      return QMessageBox::Yes;
    };
    ClickRow("Parse_listbox", 0);
    Press("Parse_3");
    EXPECT_EQ(asked, 2);
    Press("Clear_list");
  }
}

TEST_F(ParsingTest, TheReaderKeepsThePlaceThatTheSearchLeavesAlone) {
  std::string line;
  for (int i = 0; i < 240; ++i) line += "not ";
  OpenStory(60, line);
  QScrollBar& bar = *View().verticalScrollBar();
  bar.setValue(bar.maximum() / 2);
  const auto atTop = [&] { return View().cursorForPosition({0, 0}).position(); };
  const int top = atTop();
  constexpr int kLine = 100;  // more characters than the first line can lose by rewrapping
  // The marks above are bold and take more lines than before.
  Press("Parse_1");
  EXPECT_EQ(At(0).bold, true);
  EXPECT_GT(form.RichTextBox1.SelStart, 60 * 960);
  EXPECT_NEAR(atTop(), top, kLine);
  ExpectShown(window, form);
  // Keys still go where the caret is.
  Choose("mnuPostProcess");
  EXPECT_NEAR(atTop(), top, kLine);
  ExpectShown(window, form);
  const auto caret = static_cast<std::size_t>(form.RichTextBox1.SelStart.Get());
  Keys("x");
  EXPECT_EQ(form.RichTextBox1.Text()[caret], U'x');
  EXPECT_GT(atTop(), top + kLine);
  EXPECT_TRUE(View().viewport()->rect().contains(View().cursorRect()));
  ExpectShown(window, form);
}

}  // namespace
}  // namespace quill::test
