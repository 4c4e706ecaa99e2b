// How the text is seen: its zoom, its marks in words and in pixels, and what counts as one
// character there.
#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QLabel>
#include <QMimeData>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <QtTest>

#include "shown_window.h"
#include "user.h"

namespace quill::test {
namespace {

class ViewTest : public WindowTest {
 protected:
  void Wheel(int angle) {
    const QPointF middle = View().viewport()->rect().center();
    QWheelEvent event(middle, View().viewport()->mapToGlobal(middle), {}, {0, angle}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &event);
  }
  std::string MarkAtCaret() const {
    return window.findChild<QLabel*>(QStringLiteral("MarkAtCaret"))->text().toStdString();
  }
  // The rectangle of the points of a colour in a stretch of one line.
  QRect Area(Position begin, Position end, QRgb colour) {
    const QRect place(CaretAt(begin).topRight() + QPoint(2, -8),
                      CaretAt(end).bottomLeft() + QPoint(-2, 8));
    const auto wanted = [&](const QColor& found) { return found.rgb() == colour; };
    return AreaOf(Painted(place), wanted).translated(place.topLeft());
  }
};

TEST_F(ViewTest, TheZoomLeavesTheTextAlone) {
  OpenText("\\fs24 one {\\cf0 two} three\\par four");
  DragOver(4, 7);
  const std::string bytes = form.RichTextBox1.Doc().GetSource().bytes;
  const int height = CaretAt(0).height();
  const int left = CaretOnPage(4);
  const auto larger = [&](double times) {
    EXPECT_NEAR(CaretAt(0).height(), height * times, 3);
    EXPECT_NEAR(CaretOnPage(4), left * times, left * times / 6);
    ExpectShown(window, form);
  };
  for (int i = 0; i < 5; ++i) Key(Qt::Key_Plus, Qt::ControlModifier);
  larger(2);
  Wheel(-60);
  larger(2);
  Wheel(-60);
  larger(1.75);
  Key(Qt::Key_0, Qt::ControlModifier);
  larger(1);
  Wheel(120 * 50);
  larger(4);
  // A mark, a key and another text are shown in the same size.
  Press("DefAMarker");
  larger(4);
  OpenText("\\fs24 one two");
  larger(4);
  Wheel(-120 * 50);
  larger(0.5);
  EXPECT_FALSE(form.RichTextBox1.CanUndo());
}

TEST_F(ViewTest, TheZoomKeepsTheReadersPlace) {
  std::string body;
  for (int i = 0; i < 300; ++i) body += "Nothing happened.\\par ";
  OpenText(body);
  View().verticalScrollBar()->setValue(2000);
  const auto atTop = [&] { return View().cursorForPosition({0, 0}).blockNumber(); };
  const int top = atTop();
  ASSERT_GT(top, 50);
  for (const int angle : {600, -1200}) {
    Wheel(angle);
    EXPECT_NEAR(atTop(), top, 1);
  }
}

TEST_F(ViewTest, MarksAreToldInWords) {
  OpenText(R"({\colortbl;\red0\green0\blue255;\red255\green0\blue0;\red128\green128\blue255;})"
           R"(\cf1\b a\b0\up3\ul b\up0\ulnone c\cf2\b d\cf3 e\cf0\b0 f)");
  const struct {
    Position at;
    const char* name;
  } kCases[] = {
      {0, "Kind A (blue), marked"},
      {1, "Kind A (blue), tagged, in focus"},
      {2, "Kind A (blue)"},
      {3, "Kind B (red), marked"},
      {4, "Kind A (light blue), found by the search, marked"},
  };
  const auto caretTo = [&](Position at) {
    Key(Qt::Key_Home);
    for (Position i = 0; i < at; ++i) Key(Qt::Key_Right);
  };
  DragOver(0, 0);
  for (const auto& test : kCases) {
    caretTo(test.at);
    EXPECT_EQ(MarkAtCaret(), test.name);
    const QPoint point = (CaretAt(test.at).center() + CaretAt(test.at + 1).center()) / 2;
    QHelpEvent event(QEvent::ToolTip, point, View().viewport()->mapToGlobal(point));
    QToolTip::hideText();
    QApplication::sendEvent(View().viewport(), &event);
    EXPECT_EQ(QToolTip::text().toStdString(), test.name);
  }
  caretTo(5);
  EXPECT_EQ(MarkAtCaret(), kCases[4].name) << "of the character before";
  Key(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(MarkAtCaret(), "");
  Press("DefBMarker");
  EXPECT_EQ(MarkAtCaret(), "Kind B (red)");
}

// What a reader sees as one character is one for arrows, keys and the mouse.
TEST_F(ViewTest, TheCaretPassesWhatIsSeenAsOneCharacter) {
  const struct {
    const char* text;
    Position length;
  } kCases[] = {
      {R"(e\u769?)", 2},                                    // accent
      {R"(\u1513?\u1464?\u1473?)", 3},                      // Hebrew points
      {R"(\u-10179?\u-9112?\u8205?\u-10179?\u-9111?)", 3},  // joined emoji
      {R"(\u-10179?\u-8704?)", 1},                          // beyond U+FFFF
      {R"(\u4352?\u4449?)", 2},                             // Hangul
  };
  for (const auto& test : kCases) {
    SCOPED_TRACE(test.text);
    OpenText(std::string("a") + test.text + "b");
    const Position whole = test.length + 2;
    ASSERT_EQ(form.RichTextBox1.Length(), whole);
    DragOver(0, 0);
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    EXPECT_EQ(form.RichTextBox1.SelStart, 1 + test.length);
    Key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(form.RichTextBox1.SelLength, test.length);
    Key(Qt::Key_Right);
    Key(Qt::Key_Backspace);
    EXPECT_EQ(form.RichTextBox1.Text(), U"ab");
    Key(Qt::Key_Z, Qt::ControlModifier);
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(Qt::Key_Right);
    Key(Qt::Key_Delete);
    EXPECT_EQ(form.RichTextBox1.Text(), U"ab");
    ExpectShown(window, form);
  }
}

TEST_F(ViewTest, LinesOfTwoDirections) {
  OpenText(R"(\rtlpar \u1488?\u1489? one \u1490?\par \ltrpar two \u1491?\u1492?\par)");
  ASSERT_EQ(form.RichTextBox1.Text(), U"\u05D0\u05D1 one \u05D2\ntwo \u05D3\u05D4\n");
  EXPECT_GT(CaretOnPage(0), ThePage().width - 20) << "the line begins at the right";
  EXPECT_LT(CaretAt(1).left(), CaretAt(0).left());
  EXPECT_LT(CaretAt(4).left(), CaretAt(5).left()) << "Latin inside it still goes to the right";
  EXPECT_LT(CaretOnPage(9), 20);
  DragOver(0, 2);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"\u05D0\u05D1");
  Key(Qt::Key_Left);
  Keys("x");
  EXPECT_EQ(form.RichTextBox1.Length(), 17);
  ExpectShown(window, form);
}

TEST_F(ViewTest, RaisedAndUnderlinedTextLooksSo) {
  OpenText(R"({\colortbl;\red0\green0\blue255;}\fs60\cf1 IIII{\up30 IIII}{\ul IIII}\cf0  then)");
  const QRgb blue = qRgb(0, 0, 255);
  const QRect plain = Area(0, 4, blue);
  const QRect raised = Area(4, 8, blue);
  const QRect underlined = Area(8, 12, blue);
  ASSERT_GT(plain.height(), 15);
  EXPECT_LT(raised.top(), plain.top() - 3);
  EXPECT_LT(raised.bottom(), plain.bottom() - 3);
  EXPECT_EQ(underlined.top(), plain.top());
  EXPECT_GT(underlined.bottom(), plain.bottom() + 1);
  EXPECT_GT(underlined.width(), plain.width());
  // Under a highlight and beside one, too.
  DragOver(4, 12);
  EXPECT_EQ(Area(4, 8, blue), raised);
  EXPECT_GT(Area(8, 12, blue).bottom(), plain.bottom() + 1);
  DragOver(0, 4);
  EXPECT_EQ(Area(4, 8, blue), raised);
}

// One that is not would be skipped, and with it the serif typeface that the desktop has for it.
TEST_F(ViewTest, EveryFamilyOfTheTextIsInstalled) {
  OpenText(R"({\fonttbl{\f1 No such family;}}{\f1 one}{\f0 two})");
  for (const int position : {1, 4}) {
    QTextCursor cursor(View().document());
    cursor.setPosition(position);
    const QStringList families = cursor.charFormat().fontFamilies().toStringList();
    EXPECT_GE(families.size(), 2);
    for (const QString& family : families) {
      EXPECT_TRUE(QFontDatabase::hasFamily(family)) << family.toStdString();
    }
  }
}

}  // namespace
}  // namespace quill::test
