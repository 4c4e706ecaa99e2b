// The page of the text: what is laid out, and what stays where it is.
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest>
#include <numeric>
#include <random>

#include "shown_window.h"
#include "user.h"
#include "window/page/heights.h"
#include "window/page/page_layout.h"

namespace quill::test {
namespace {

TEST(HeightsTest, AreThoseOfAPlainList) {
  std::mt19937 random(1);
  const auto upTo = [&](std::size_t most) { return random() % (most + 1); };
  const auto some = [&](std::size_t count) {
    std::vector<int> heights(count);
    for (int& height : heights) height = static_cast<int>(upTo(3) * upTo(50));
    return heights;
  };
  Heights heights;
  std::vector<int> plain;
  for (int step = 0; step < 2000; ++step) {
    if (plain.empty() || step % 500 == 0) {
      plain = some(1 + upTo(40));
      heights.Assign(plain);
    } else if (step % 3 == 0) {
      const std::size_t first = upTo(plain.size() - 1);
      const std::size_t removed = upTo(plain.size() - first - (first == 0 ? 1 : 0));
      const std::vector<int> inserted = some(upTo(5));
      heights.Replace(first, removed, inserted);
      const auto at = plain.begin() + static_cast<std::ptrdiff_t>(first);
      plain.insert(plain.erase(at, at + static_cast<std::ptrdiff_t>(removed)), inserted.begin(),
                   inserted.end());
    } else {
      const std::size_t index = upTo(plain.size() - 1);
      heights.Set(index, plain[index] = static_cast<int>(upTo(60)));
    }
    ASSERT_EQ(heights.Count(), plain.size());
    const int total = std::accumulate(plain.begin(), plain.end(), 0);
    ASSERT_EQ(heights.Total(), total);
    const int height = static_cast<int>(upTo(static_cast<std::size_t>(total) + 10)) - 5;
    std::size_t expected = 0;
    int top = 0;
    while (expected + 1 < plain.size() && top + plain[expected] <= height) top += plain[expected++];
    ASSERT_EQ(heights.IndexAt(height), expected) << "at " << height;
    ASSERT_EQ(heights.Top(expected), top);
  }
}

class PageTest : public WindowTest {
 protected:
  // Waits until everything is painted. The end of an earlier test's window may take the focus from
  // this one.
  void Rest() {
    QApplication::processEvents();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void OpenNovel() {
    std::string body;
    for (int i = 0; i < 10'000; ++i) body += "Nothing happened, then or later.\\par ";
    OpenText(R"({\colortbl;\red0\green0\blue255;})" + body + R"(\cf1 then\cf0\par Over.)");
    Choose("mnuPostProcess");
    Rest();
    DragOver(0, 0);
  }
  int LaidOut() const {
    int count = 0;
    for (QTextBlock block = View().document()->begin(); block.isValid(); block = block.next()) {
      count += block.layout()->lineCount() > 0 ? 1 : 0;
    }
    return count;
  }
  QScrollBar& Bar() const { return *View().verticalScrollBar(); }
  // What is at the top of the view, and where.
  std::pair<int, double> TopLine() const {
    const PageLayout::Line line = PageLayout::Of(*View().document()).LineAt(Bar().value());
    return {line.position, line.top - Bar().value()};
  }
};

TEST_F(PageTest, LaysOutWhatIsInSight) {
  OpenNovel();
  constexpr int kLeastLine = 10;
  const int inSight = View().viewport()->height() / kLeastLine;
  const struct {
    const char* name;
    std::function<void()> action;
    int times;
  } kSteps[] = {
      {"open", [] {}, 1},
      {"scroll", [&] { Bar().setValue(100'000); }, 1},
      {"zoom", [&] { QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier); }, 1},
      {"resize", [&] { window.resize(window.width() + 100, window.height()); }, 1},
      {"search", [&] { Press("FindAMarker"); }, 2},
      {"mark",
       [&] {
         form.RichTextBox1.Format({{0, 300'000}}, {.bold = true});
         Press("FindAMarker");
       },
       2},
      {"end",
       [&] {
         Press("RichTextBox1");
         QTest::keyClick(&View(), Qt::Key_Home, Qt::ControlModifier);
         QTest::keyClick(&View(), Qt::Key_End, Qt::ControlModifier);
       },
       3},
  };
  int before = 0;
  for (const auto& step : kSteps) {
    step.action();
    Rest();
    const int now = LaidOut();
    EXPECT_LE(now - before, inSight * step.times) << step.name;
    EXPECT_GT(now, 5) << step.name;
    before = now;
  }
  EXPECT_GE(Bar().value(), Bar().maximum() - ThePage().margin);
  EXPECT_LT(CaretAt(form.RichTextBox1.Length()).bottom(), View().viewport()->height());
  QTest::keyClick(&View(), Qt::Key_Home, Qt::ControlModifier);
  EXPECT_LE(Bar().value(), ThePage().margin);
}

TEST_F(PageTest, TheLineAtTheTopStays) {
  OpenNovel();
  Bar().setValue(Bar().maximum() / 2);
  Rest();
  const auto top = TopLine();
  const struct {
    const char* name;
    std::function<void()> action;
  } kSteps[] = {
      {"marks above",
       [&] {
         form.RichTextBox1.Format({{0, 100'000}}, {.bold = true});
         Choose("mnuPostProcess");
       }},
      {"a jump there and back",
       [&] {
         CaretAt(0);
         CaretAt(50'000);
       }},
      {"zoom", [&] { QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier); }},
      {"width", [&] { window.resize(window.width() - 60, window.height()); }},
  };
  for (const auto& step : kSteps) {
    step.action();
    Rest();
    EXPECT_EQ(TopLine(), top) << step.name;
  }
}

TEST_F(PageTest, TheScrollBarStaysUnderTheMouse) {
  OpenNovel();
  for (int i = 0; i < 8; ++i) QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
  Bar().setSliderDown(true);
  const int maximum = Bar().maximum();
  for (int value = maximum - 1000; value > 0; value -= maximum / 7) {
    Bar().setSliderPosition(value);
    Rest();
    EXPECT_EQ(Bar().value(), value);
    EXPECT_EQ(Bar().maximum(), maximum);
  }
  Bar().setSliderDown(false);
  Bar().setValue(0);
  EXPECT_EQ(TopLine().first, 0);
}

// A novel is read on a page, and a small window uses all its width.
TEST_F(PageTest, LinesAreNoLongerThanAReaderLikes) {
  OpenText("\\fs24 " + std::string(2000, 'n'));
  Rest();
  DragOver(0, 0);
  const auto longest = [&] {
    const QTextLayout& layout = *View().document()->firstBlock().layout();
    return layout.lineAt(0).textLength();
  };
  window.resize(window.width() + 800, window.height());
  Rest();
  const Page page = ThePage();
  const int wide = longest();
  EXPECT_LT(wide, 101);
  EXPECT_NEAR(page.left * 2 + page.width, View().viewport()->width(), 1);
  window.resize(0, window.height());
  Rest();
  EXPECT_LE(longest(), wide);
  for (int i = 0; i < 5; ++i) QTest::keyClick(&View(), Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(ThePage().left, ThePage().margin);
}

}  // namespace
}  // namespace quill::test
