// What is drawn around paragraphs without being text of theirs.
#include <QLabel>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>
#include <QtTest>

#include "shown_window.h"
#include "user.h"
#include "window/shared/shown.h"

namespace quill::test {
namespace {

class DecorationTest : public WindowTest {
 protected:
  // Whether something is painted in a rectangle of the text.
  bool IsPainted(const QRect& place) {
    const auto isDark = [](const QColor& colour) { return colour.lightness() < 160; };
    return !AreaOf(Painted(place), isDark).isEmpty();
  }
};

TEST_F(DecorationTest, LabelsStandInFrontOfTheirParagraphs) {
  OpenText(
      R"(\fi-360\li720{\listtext 7.\tab}seven\par {\listtext\tab}none\par )"
      R"(\pard{\listtext (viii)\tab}eight\par \pard\rtlpar{\listtext 9.\tab}\u1488?\u1489?\par)");
  EXPECT_EQ(form.RichTextBox1.Text(), U"seven\nnone\neight\n\u05D0\u05D1\n");
  EXPECT_NEAR(CaretOnPage(0), 48, 2) << "the text begins where the tab stop would be";
  const auto before = [&](Position at) {
    const QRect caret = CaretAt(at);
    return QRect(QPoint(0, caret.top()), QPoint(caret.left() - 3, caret.bottom()));
  };
  EXPECT_TRUE(IsPainted(before(0)));
  EXPECT_FALSE(IsPainted(before(6)));
  EXPECT_TRUE(IsPainted(before(11)));
  const QRect right = CaretAt(17);
  EXPECT_TRUE(IsPainted({right.right() + 3, right.top(), View().width(), right.height()}));
  // A label is neither selected nor copied, and goes with its paragraph.
  DragOver(0, 5);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"seven");
  Key(Qt::Key_Home, Qt::ControlModifier);
  Keys("x");
  EXPECT_TRUE(IsPainted(before(0)));
  Key(Qt::Key_Return);
  EXPECT_EQ(form.RichTextBox1.Text().substr(0, 7), U"x\nseven");
  ExpectShown(window, form);
}

TEST_F(DecorationTest, LinesPartRowsAndCells) {
  OpenText(R"(\trowd\cellx1500\cellx4500\intbl a\cell bb\cell\row )"
           R"(\intbl longer than the column\cell b\cell\row\pard behind)");
  const auto grey = [this](const QRect& place, QPoint step) {
    const QImage image = View().viewport()->grab(place).toImage();
    int lines = 0;
    for (QPoint at(0, 0); image.rect().contains(at); at += step) {
      lines += image.pixelColor(at) == QColor(0xc8, 0xc8, 0xc8);
    }
    return lines;
  };
  const QRect gap(QPoint(200, CaretAt(0).bottom() + 1), QPoint(300, CaretAt(6).top() - 1));
  EXPECT_EQ(grey(gap, {0, 1}), 1);
  for (const Position cell : {2, 29}) {
    const QRect place = CaretAt(cell);
    EXPECT_EQ(grey({place.left() - 12, place.top() + 3, 10, 1}, {1, 0}), 1) << cell;
    EXPECT_EQ(grey({place.left() + 3, place.top() + 3, 100, 1}, {1, 0}), 0) << cell;
  }
}

TEST_F(DecorationTest, NotesAreTickedAndTold) {
  OpenText(
      R"(one{\super\chftn}{\footnote {\chftn} be\'e9low} two {\*\atnauthor Ann}{\*\annotation <odd>}\par )"
      R"(\trowd\cellx3000\cellx6000\intbl a\cell{\footnote *}b\cell\row\pard end)");
  const auto isTick = [](const QColor& colour) { return colour == QColor(0x78, 0x80, 0x88); };
  const auto expectTick = [&](Position gap, int scale, int x) {
    const QRect caret = CaretAt(gap);
    const QRect near(caret.left() - 10 * scale, caret.top() - 2, 20 * scale, 14 * scale);
    const QRect tick = AreaOf(Painted(near), isTick).translated(near.topLeft());
    EXPECT_NEAR(tick.center().x(), caret.left() + x, scale) << gap;
    EXPECT_NEAR(tick.width(), 6 * scale, 2 * scale) << gap;
    EXPECT_NEAR(tick.top(), caret.top(), 1) << gap;
  };
  for (const int scale : {1, 2}) {
    for (int i = 0; scale == 2 && i < 5; ++i) {
      QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    }
    expectTick(3, scale, 0);
    expectTick(8, scale, 0);
    expectTick(11, scale, 0);
    EXPECT_TRUE(AreaOf(Painted(CaretAt(5).adjusted(-4, 0, 4, 0)), isTick).isEmpty());
  }
  const auto told = [&](Position at) {
    ClickAt(at);
    return window.findChild<QLabel*>(QStringLiteral("MarkAtCaret"))->accessibleDescription();
  };
  EXPECT_EQ(told(3), QStringLiteral("Footnote 1: be\u00E9low"));
  EXPECT_EQ(told(4), QString());
  EXPECT_EQ(told(8), QStringLiteral("Comment by Ann: <odd>"));
  const QPoint place = CaretAt(8).center();
  QHelpEvent help(QEvent::ToolTip, place, View().viewport()->mapToGlobal(place));
  QApplication::sendEvent(View().viewport(), &help);
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("Comment by Ann: &lt;odd&gt;")));
  QToolTip::hideText();
  ClickAt(1);
  Keys("x");
  expectTick(4, 2, 0);
  EXPECT_EQ(told(4), QStringLiteral("Footnote 1: be\u00E9low"));
}

TEST_F(DecorationTest, PagesEndInADashedLine) {
  OpenText(R"(one\page two\par\pard\pagebb three\par four)");
  const auto isLine = [](const QColor& colour) { return colour == QColor(0xa0, 0xa0, 0xa0); };
  for (const Position at : {0, 4, 8}) {
    const QRect line = CaretAt(at);
    const QRect end(ThePage().left + 200, line.top() + 3, 300, line.height());
    const QRect area = AreaOf(Painted(end), isLine);
    EXPECT_EQ(area.height(), at < 8 ? 1 : 0) << at;
  }
}

TEST_F(DecorationTest, SymbolsAreShownByTheCharactersThatLookLikeThem) {
  disk.files["y.tbf"] = R"({\rtf1{\fonttbl{\f0 Arial;}{\f1\fcharset2 Symbol;})"
                        R"({\f2\fcharset2 Wingdings;}{\f3\fcharset2 Webdings;}})"
                        R"(\f1 ab\'b7\f2\'fc\'4a\'24\f3 a\f0 a\u-3913?})";
  Press("CloseIDFrame");
  dialogs.answers = {std::u32string(U"y.tbf")};
  Choose("mnuFileOpen");
  EXPECT_EQ(form.RichTextBox1.Text(), U"\uF061\uF062\uF0B7\uF0FC\uF04A\uF024\uF061a\uF0B7");
  EXPECT_EQ(RawText(*View().document()), U"\u03B1\u03B2\u2022\u2713\u263A\uF024\uF061a\uF0B7");
  ExpectShown(window, form);
  DragOver(0, 3);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"\uF061\uF062\uF0B7");
}

}  // namespace
}  // namespace quill::test
