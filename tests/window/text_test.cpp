// The text: selecting and editing by hand, all of it through the model.
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QtTest>

#include "shown_window.h"
#include "text/marks.h"
#include "user.h"
#include "window/shared/shown.h"

namespace quill::test {
namespace {

class TextTest : public WindowTest {
 protected:
  // The text around caret and selection, as "one [two] th|ree".
  std::string Dump() const {
    const TextSurface& text = form.RichTextBox1;
    const auto begin = static_cast<std::size_t>(text.Selection().begin);
    const auto end = static_cast<std::size_t>(text.Selection().end);
    std::u32string dump = text.Text();
    if (begin == end) return ToQt(dump.insert(begin, U"|")).toStdString();
    return ToQt(dump.insert(end, U"]").insert(begin, U"[")).toStdString();
  }
  void Commit(const QString& preedit, const QString& commit) {
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QApplication::sendEvent(&View(), &event);
  }
  void PressAt(Position at) { DragOver(at, at); }
};

TEST_F(TextTest, KeysEditTheModel) {
  OpenText("one two three");
  PressAt(3);
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* expected;
  } kSteps[] = {
      {Qt::Key_X, {}, "onex| two three"},
      {Qt::Key_Backspace, {}, "one| two three"},
      {Qt::Key_Right, Qt::ShiftModifier, "one[ ]two three"},
      {Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier, "one[ two ]three"},
      {Qt::Key_Delete, {}, "one|three"},
      {Qt::Key_Return, {}, "one\n|three"},
      {Qt::Key_Return, Qt::ShiftModifier, "one\n\xE2\x80\xA8|three"},
      {Qt::Key_Delete, Qt::ControlModifier, "one\n\xE2\x80\xA8|"},
      {Qt::Key_Z, Qt::ControlModifier, "one\n\xE2\x80\xA8three|"},
      {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "one\n\xE2\x80\xA8|"},
      {Qt::Key_A, Qt::ControlModifier, "[one\n\xE2\x80\xA8]"},
      {Qt::Key_X, Qt::ControlModifier, "|"},
      {Qt::Key_V, Qt::ControlModifier, "one\n\xE2\x80\xA8|"},
      {Qt::Key_Backspace, Qt::ControlModifier, "one\n|"},
  };
  for (const auto& step : kSteps) {
    Key(step.key, step.modifiers);
    EXPECT_EQ(Dump(), step.expected);
    ExpectShown(window, form);
  }
}

TEST_F(TextTest, PositionsBehindWideCharacters) {
  OpenText(R"(a\u-10179?\u-8704?b\u-10179?\u-8704?c yesterday)");
  ASSERT_EQ(form.RichTextBox1.Length(), 15);
  PressAt(0);
  for (int i = 0; i < 3; ++i) Key(Qt::Key_Right);
  EXPECT_EQ(form.RichTextBox1.SelStart, 3);
  Key(Qt::Key_Backspace);
  Key(Qt::Key_Delete);
  EXPECT_EQ(form.RichTextBox1.Text(), U"a\U0001F600c yesterday");
  ExpectShown(window, form);
  Key(Qt::Key_Z, Qt::ControlModifier);
  Key(Qt::Key_End);
  Key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(form.RichTextBox1.SelText(), U"yesterday");
  Press("DefAMarker");
  EXPECT_EQ(form.RichTextBox1.Doc().At(5).colour, kMarkedA);
  EXPECT_EQ(form.RichTextBox1.Doc().At(4).colour, 0U);
  ExpectShown(window, form);
}

TEST_F(TextTest, CharactersThatTheToolkitWouldTakeForParagraphs) {
  OpenText("x");
  PressAt(1);
  QApplication::clipboard()->setText(QStringLiteral("a\r\nb\u00A0c\uFDD0d\uFFFC"));
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.RichTextBox1.Text(), U"xa\nb\u00A0c\uFDD0d");
  Keys("e");
  EXPECT_EQ(form.RichTextBox1.Text(), U"xa\nb\u00A0c\uFDD0de");
  ExpectShown(window, form);
}

TEST_F(TextTest, AnInputMethodCommitsThroughTheModel) {
  OpenText("one two");
  DragOver(4, 7);
  Commit(QStringLiteral("ni"), {});
  EXPECT_EQ(Dump(), "one [two]") << "what is not committed is no text yet";
  ExpectShown(window, form);
  Commit({}, QStringLiteral("\u4F60"));
  EXPECT_EQ(Dump(), "one \u4F60|");
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(form.RichTextBox1.Text(), U"one two");
  ExpectShown(window, form);
}

TEST_F(TextTest, TheContextMenuEditsTheModel) {
  OpenText("one two");
  DragOver(0, 4);
  QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, View().mapToGlobal(QPoint(5, 5)));
  QApplication::sendEvent(View().viewport(), &event);
  auto* const menu = View().findChild<QMenu*>();
  ASSERT_NE(menu, nullptr);
  for (QAction* const action : menu->actions()) {
    if (action->text() == "Cu&t") action->trigger();
  }
  EXPECT_EQ(Dump(), "|two");
  EXPECT_EQ(QApplication::clipboard()->text(), "one ");
  ExpectShown(window, form);
}

TEST_F(TextTest, AFoundTermIsScrolledIntoView) {
  std::string body;
  for (int i = 0; i < 200; ++i) body += "Nothing happened.\\par ";
  OpenText(body + R"({\colortbl;\red0\green0\blue255;}\cf1 then\cf0\par Over.\par)");
  Choose("mnuPostProcess");
  Press("FindAMarker");
  EXPECT_EQ(form.RichTextBox1.SelText(), U"then");
  const QRect caret = View().cursorRect();
  const int lines = 2 * caret.height();
  EXPECT_GT(caret.top(), lines);
  EXPECT_LT(caret.bottom(), View().viewport()->height());
}

TEST_F(TextTest, MarksKeepTheirColourUnderTheHighlight) {
  OpenText(R"({\colortbl;\red255\green0\blue0;}\fs80\b\cf1 IIIIIIII\cf0  then)");
  PressAt(12);
  const auto red = [&] {
    const QImage image = Painted();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == QColor(Qt::red);
    }
    return count;
  };
  const int before = red();
  ASSERT_GT(before, 200);
  DragOver(0, 8);
  EXPECT_GT(red(), before / 2);
}

}  // namespace
}  // namespace quill::test
