// One text on the real window, from opening to saving, by mouse and keyboard.
#include <QApplication>
#include <QMenu>
#include <QtTest>
#include <set>

#include "shown_window.h"
#include "user.h"

namespace quill::test {
namespace {

constexpr const char* kBody = R"(He came yesterday and left.\par {\i Nobody} saw him again.\par)";

TEST_F(WindowTest, ShowsTheStoredState) {
  ExpectShown(window, form);
  EXPECT_EQ(Widget("RichTextBox1").geometry(), QRect(8, 8, 937, 289));
  EXPECT_EQ(Widget("A_type_add").geometry(), QRect(192, 16, 33, 25));
}

TEST_F(WindowTest, PanelsCoverEachOther) {
  OpenText(kBody);
  // Both are shown when a text is opened in post-processing.
  Choose("mnuPostProcess");
  OpenText(kBody);
  ASSERT_TRUE(form.PreFrame.Visible && form.PostFrame.Visible);
  const QWidget& desk = *Widget("PostFrame").parentWidget();
  EXPECT_EQ(desk.childAt(Widget("PostFrame").geometry().center())->window(), &window);
  EXPECT_EQ(desk.childAt(100, 360), &Widget("FindAMarker"));

  const int width = Widget("RichTextBox1").width();
  Choose("mnuDialogue_off");
  Choose("mnuDialogue_on");
  EXPECT_LT(Widget("RichTextBox1").width(), width - 190) << "the text wraps beside the guidance";
  ExpectShown(window, form);
}

TEST_F(WindowTest, TheTextTakesWhatTheWindowGrowsBy) {
  OpenText(kBody);
  const QSize stored = window.size();
  const QRect text = Widget("RichTextBox1").geometry();
  const QRect panel = Widget("PreFrame").geometry();
  window.resize(stored + QSize(200, 100));
  QApplication::processEvents();
  EXPECT_EQ(Widget("RichTextBox1").geometry(), text.adjusted(0, 0, 200, 100));
  EXPECT_EQ(Widget("PreFrame").geometry(), panel.translated(0, 100));
}

TEST_F(WindowTest, InASmallWindowTheTextShrinksAndTabBringsWhatIsOutOfSight) {
  OpenText(kBody);
  Press("DefAMarker");
  window.resize(700, 420);
  QApplication::processEvents();
  const QWidget& text = Widget("RichTextBox1");
  EXPECT_EQ(text.height(), 90);
  EXPECT_EQ(text.visibleRegion().boundingRect(), text.rect()) << "no line is cut";
  std::set<std::string> visited;
  while (visited.insert(FocusName()).second) {
    Key(Qt::Key_Tab);
    const QWidget& reached = Widget(FocusName().c_str());
    EXPECT_EQ(reached.visibleRegion().boundingRect(), reached.rect()) << FocusName();
  }
  EXPECT_GT(visited.size(), 10U);
}

TEST_F(WindowTest, AMenuTitleHasAHandlerOfItsOwn) {
  ASSERT_FALSE(form.Infoframe.Visible);
  window.activateWindow();
  auto* const title = window.findChild<QAction*>("mnuInfo");
  emit title->menu()->aboutToShow();
  EXPECT_TRUE(form.Infoframe.Visible);
  ExpectShown(window, form);
}

TEST_F(WindowTest, ClosingEndsTheProgram) {
  window.close();
  EXPECT_TRUE(program.Ended());
}

TEST_F(WindowTest, TheExitItemClosesTheWindow) {
  Choose("mnuFileClose");
  EXPECT_TRUE(program.Ended());
  EXPECT_FALSE(window.isVisible());
}

}  // namespace
}  // namespace quill::test
