// The text as its author set it, in places and in pixels: at the usual size and at twice that.
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest>

#include "shown_window.h"
#include "user.h"
#include "window/page/page_layout.h"

namespace quill::test {
namespace {

class LooksTest : public WindowTest {
 protected:
  LooksTest() { window.resize(1000, 1200); }
  void ZoomTo(int times) {
    QTest::keyClick(&View(), Qt::Key_0, Qt::ControlModifier);
    for (int step = 0; step < 5 * (times - 1); ++step) {
      QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
    }
    ASSERT_EQ(ThePage().scale, times);
  }
  // From the top of the first paragraph to that of the second one, laid out or guessed.
  double Height(bool guessed) {
    PageLayout& page = PageLayout::Of(*View().document());
    if (guessed) page.LayOutAnew();
    const QTextBlock second = View().document()->findBlockByNumber(1);
    return page.TopOf(second) - page.TopOf(View().document()->firstBlock());
  }
  // How many points of a colour there are in a part of the view.
  int Count(const QRect& place, QRgb colour) {
    const QImage image = Painted(place);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) == colour ? 1 : 0;
    }
    return count;
  }
};

TEST_F(LooksTest, LinesStandApart) {
  OpenText("\\fs24 a\\line b\\par c");
  const double natural = Height(false) / 2;
  const struct {
    const char* words;
    double advance;  // from line to line at the usual size
    double above;    // the first line
  } kCases[] = {
      {"\\sl240\\slmult1", natural, 0},
      {"\\sl480\\slmult1", natural * 2, 0},
      {"\\sl180\\slmult1", natural * .75, -natural / 4},
      {"\\sl-600", 40, 40 * .8 - 16},
      {"\\sl-150", 10, 10 * .8 - 16},
      {"\\sl600", 40, 40 - natural},
      {"\\sl60", natural, 0},
  };
  for (const auto& test : kCases) {
    OpenText(std::string("\\fs24") + test.words + " a\\line b\\par c");
    for (const int times : {1, 2}) {
      ZoomTo(times);
      SCOPED_TRACE(testing::Message() << test.words << " at " << times);
      EXPECT_NEAR(Height(true), test.advance * times, test.advance * times / 20) << "guessed";
      CaretAt(0);
      EXPECT_NEAR(Height(false), test.advance * 2 * times, 2 * times);
      const QTextLayout& lines = *View().document()->firstBlock().layout();
      EXPECT_NEAR(lines.lineAt(1).y() - lines.lineAt(0).y(), test.advance * times, times);
      EXPECT_NEAR(lines.lineAt(0).y(), test.above * times, 2 * times);
    }
  }
}

TEST_F(LooksTest, TabsGoToTheirStops) {
  const struct {
    const char* body;
    Position at;  // the place that stands
    int left;     // so far from the page's left edge
  } kCases[] = {
      {"\\tx1500\\tx3000 a\\tab b", 2, 100},
      {"\\tx1500\\tx3000 a\\tab\\tab b", 3, 200},
      {"\\li300\\tx1500 a\\tab b", 2, 100},
      {"\\li1200\\fi-600\\tx1500 a\\tab b", 2, 80},
      {"\\tqr\\tx3000 a\\tab right", 7, 200},
      {"\\tqc\\tx3000 a\\tab nn", 3, 200},
      {"\\tqdec\\tx3000 \\tab 27.5", 3, 200},
      {"\\tqdec\\tx3000 \\tab 27,5", 3, 200},
      {"\\tqdec\\tx3000 \\tab 275", 4, 200},
      {"\\li900 a\\tab b", 2, 96},
      {"\\fi600 a", 0, 40},
      {"\\tqr\\tx1500\\pard a\\tab b", 2, 48},
  };
  for (const auto& test : kCases) {
    OpenText(test.body);
    for (const int times : {1, 2}) {
      ZoomTo(times);
      EXPECT_NEAR(CaretOnPage(test.at), test.left * times, 3 * times) << test.body << times;
    }
  }
  ZoomTo(1);
  // The last line of an entry that hangs out.
  OpenText("\\li900\\fi-900\\tqr\\tx6000 1.\\tab " + std::string(70, 'n') + " " +
           std::string(30, 'n') + "\\tab 23");
  EXPECT_NEAR(CaretOnPage(3), 60, 3);
  EXPECT_NEAR(CaretOnPage(107), 400, 3);
  OpenText("\\tqr\\tx20000 a\\tab b");
  EXPECT_NEAR(CaretOnPage(3), ThePage().width, 3) << "a stop beyond the page";
}

TEST_F(LooksTest, CharactersTakeTheirRoom) {
  OpenText(
      "\\fs24 iiii\\par\\expndtw60 iiii\\par\\expndtw0\\caps iiii\\par\\caps0 IIII"
      "\\par\\scaps nnnnnnnn");
  const int small = CaretOnPage(28);
  for (const int times : {1, 2}) {
    ZoomTo(times);
    EXPECT_NEAR(CaretOnPage(9) - CaretOnPage(4), 4 * 4 * times, 2) << times;
    EXPECT_EQ(CaretOnPage(14), CaretOnPage(19)) << times;
    EXPECT_NEAR(CaretOnPage(28), small * times, 8) << times;
  }
  EXPECT_EQ(form.RichTextBox1.Text(), U"iiii\niiii\niiii\nIIII\nnnnnnnnn");
}

// Deleted and hidden characters are grey until they are marked; what they are is seen all the same.
TEST_F(LooksTest, ChangesAndHiddenTextAreSeen) {
  constexpr QRgb kGrey = qRgb(0x70, 0x70, 0x70);
  OpenText(
      R"({\colortbl;\red0\green0\blue255;}\fs40 {\deleted mm}\par {\revised mm}\par {\v mm}\par )"
      R"({\cf1\deleted mm}\par {\cf1\v mm}\par {\v\fs2 m}{\cf1 mm})");
  for (const int times : {1, 2}) {
    ZoomTo(times);
    const auto place = [&](Position at) { return CaretAt(at).united(CaretAt(at + 2)); };
    const auto bar = [&](Position at) {
      const QRect line = place(at);
      return Count({QPoint(0, line.top() + 2), QPoint(line.left() - 3, line.bottom() - 2)}, kGrey);
    };
    EXPECT_GT(bar(3), 10 * times);
    EXPECT_EQ(bar(0) + bar(6), 0);
    EXPECT_GT(Count(place(0), kGrey), 20) << "deleted";
    EXPECT_EQ(Count(place(3), kGrey), 0) << "inserted";
    EXPECT_GT(Count(place(6), kGrey), 20) << "hidden";
    EXPECT_EQ(Count(place(9), kGrey), 0) << "deleted and marked";
    EXPECT_GT(Count(place(12), kGrey), 5) << "hidden and marked: the dots";
    // The line through it is as long as the words.
    const QRect marked = place(9);
    const QRect through(marked.left(), marked.center().y() - 6 * times, marked.width(), 12 * times);
    EXPECT_GT(Count(through, qRgb(0, 0, 255)), marked.width());
  }
  ExpectShown(window, form);
}

TEST_F(LooksTest, FramesStandAroundParagraphs) {
  constexpr QRgb kBorder = qRgb(0, 128, 0);
  constexpr QRgb kGround = qRgb(255, 255, 0);
  OpenText(R"({\colortbl;\red255\green255\blue0;\red0\green128\blue0;\red0\green0\blue64;})"
           R"(x\par\pard\li600\cbpat1\box\brdrs\brdrw30\brdrcf2\brsp60\sb200\sa200 y\par y\par )"
           R"(\pard\cbpat3 z\par\pard\tqr\tldot\tx6000 t\tab u)");
  for (const int times : {1, 2}) {
    ZoomTo(times);
    SCOPED_TRACE(times);
    const QRect first = CaretAt(2);
    const QRect second = CaretAt(4);
    const int top = first.top() - 4 * times;
    const QRect column(first.left() + 100, CaretAt(0).bottom() + 1, 1, CaretAt(6).bottom());
    EXPECT_EQ(AreaOf(Painted(column), [&](const QColor& c) { return c.rgb() == kBorder; }),
              QRect(0, top - 2 * times - column.top(), 1,
                    second.bottom() + 1 + 6 * times - top + 2 * times));
    EXPECT_EQ(Count(column, kBorder), 4 * times) << "one frame around two paragraphs";
    EXPECT_EQ(Count(column, kGround), second.bottom() + 1 + 4 * times - top);
    const QRect row(0, first.center().y(), first.left(), 1);
    EXPECT_EQ(Count(row, kBorder), 2 * times);
    EXPECT_EQ(Painted(row).pixel(row.width() - 1, 0), kGround);
    // Marks can be read on what was dark.
    const QRect dark = CaretAt(6).translated(50, 0);
    EXPECT_GE(qGray(Painted(dark).pixel(0, 0)), 199);
    EXPECT_NE(Painted(dark).pixel(0, 0), qRgb(255, 255, 255));
    // Dots as far as the number.
    const QRect leader(CaretAt(9).topRight() + QPoint(6, 0),
                       CaretAt(10).bottomLeft() - QPoint(6, 0));
    const QRect dots =
        AreaOf(Painted(leader), [](const QColor& c) { return qGray(c.rgb()) < 128; });
    EXPECT_EQ(dots.height(), times);
    EXPECT_NEAR(dots.width(), leader.width(), 12 * times);
  }
}

}  // namespace
}  // namespace quill::test
