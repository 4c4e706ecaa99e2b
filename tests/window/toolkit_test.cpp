// What the toolkit would do on its own must not change what the model holds.
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTemporaryFile>
#include <QTextDocumentFragment>
#include <QToolTip>
#include <QtTest>
#include <functional>

#include "shown_window.h"
#include "user.h"
#include "window/shared/shown.h"
#include "workbench/failure.h"

namespace quill::test {
namespace {

class ToolkitTest : public WindowTest {
 protected:
  void ClickItem(int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    auto& list = dynamic_cast<QAbstractItemView&>(Widget("Parse_listbox"));
    const QRect line = list.visualRect(list.model()->index(row, 0));
    const QPoint below = list.viewport()->rect().bottomLeft() + QPoint(10, -2);
    QTest::mouseClick(list.viewport(), button, modifiers,
                      line.isValid() ? line.topLeft() + QPoint(10, 3) : below);
  }
  // Drags something over the middle of a widget and drops it. Returns whether it was accepted.
  bool Drop(QWidget& widget, const QMimeData& data) {
    const QPoint middle = widget.rect().center();
    QDragEnterEvent enter(middle, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &enter);
    QDropEvent drop(middle, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&widget, &drop);
    QApplication::processEvents();
    return drop.isAccepted();
  }
};

TEST_F(ToolkitTest, OnlyALeftClickAndTheKeysThatGoToARowChooseOne) {
  OpenText("one two");
  for (const char32_t* const item : {U"item a", U"item b", U"item c", U"item d"}) {
    form.Parse_listbox.AddItem(item);
  }
  Choose("mnuDialogue_off");
  const auto key = [&](Qt::Key which, Qt::KeyboardModifiers modifiers = {}) {
    return [=, this] { Key(which, modifiers); };
  };
  const auto click = [&](int row, Qt::MouseButton button, Qt::KeyboardModifiers modifiers = {}) {
    return [=, this] { ClickItem(row, button, modifiers); };
  };
  const struct {
    const char* what;
    std::function<void()> happens;
    int chosen;
  } kSteps[] = {
      {"Ctrl+C without a row", key(Qt::Key_C, Qt::ControlModifier), -1},
      {"Ctrl+A", key(Qt::Key_A, Qt::ControlModifier), -1},
      {"a key from no row", key(Qt::Key_Down), 0},
      {"left", click(1, Qt::LeftButton), 1},
      {"right", click(0, Qt::RightButton), 1},
      {"middle", click(0, Qt::MiddleButton), 1},
      {"Ctrl", click(0, Qt::LeftButton, Qt::ControlModifier), 1},
      {"below the rows", click(9, Qt::LeftButton), 1},
      {"Ctrl+Space", key(Qt::Key_Space, Qt::ControlModifier), 1},
      {"Ctrl+Down", key(Qt::Key_Down, Qt::ControlModifier), 1},
      {"down", key(Qt::Key_Down), 2},
      {"end", key(Qt::Key_End), 3},
      {"not past the end", key(Qt::Key_PageDown), 3},
      {"home", key(Qt::Key_Home), 0},
      {"typed", [&] { Keys("item c"); }, 2},
      {"copied", key(Qt::Key_C, Qt::ControlModifier), 2},
  };
  ClickItem(9, Qt::LeftButton);
  for (const auto& step : kSteps) {
    step.happens();
    EXPECT_EQ(form.Parse_listbox.ListIndex, step.chosen) << step.what;
    ExpectShown(window, form);
  }
  EXPECT_EQ(QApplication::clipboard()->text(), "item c");
}

TEST_F(ToolkitTest, TheMouseAloneChangesNoCharacters) {
  OpenText("one two");
  form.AMarkedString.Text = U"one two";
  form.add_to_dictionary.Text = U"one two";
  Choose("mnuDialogue_off");
  struct : QObject {
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
      const bool isButton = event->type() == QEvent::MouseButtonRelease;
      seen |= isButton && static_cast<QMouseEvent*>(event)->button() == Qt::MiddleButton;
      return false;
    }
    bool seen = false;  // it would paste the last selection
  } middle;
  QMimeData words;
  words.setText("three");
  const auto expectNothing = [&](QWidget& widget, const QPoint& begin, const QPoint& end) {
    SCOPED_TRACE(widget.objectName().toStdString());
    widget.installEventFilter(&middle);
    QTest::mouseClick(&widget, Qt::MiddleButton, {}, begin);
    EXPECT_FALSE(middle.seen);
    EXPECT_FALSE(Drop(widget, words));
    // Drags the selection to another place in its box.
    QTest::mouseClick(&widget, Qt::LeftButton, {}, begin);
    Key(Qt::Key_A, Qt::ControlModifier);
    QTest::mousePress(&widget, Qt::LeftButton, {}, begin);
    if (auto* const box = qobject_cast<QPlainTextEdit*>(widget.parentWidget())) {
      EXPECT_FALSE(box->textCursor().hasSelection()) << "it could be dragged away";
    }
    QMouseEvent move(QEvent::MouseMove, end, widget.mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                     {});
    if (&widget != View().viewport()) QApplication::sendEvent(&widget, &move);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, end);
    EXPECT_EQ(form.RichTextBox1.Text(), U"one two");
    EXPECT_EQ(form.AMarkedString.Text.Get(), U"one two");
    EXPECT_EQ(ToQt(form.add_to_dictionary.Text.Get()).trimmed(), "one two");
    ExpectShown(window, form);
  };
  expectNothing(*View().viewport(), {20, 20}, {60, 20});
  expectNothing(*Widget("AMarkedString").findChild<QWidget*>("qt_scrollarea_viewport"), {10, 8},
                {50, 8});
  form.MoveFocus(form.add_to_dictionary);
  expectNothing(Widget("add_to_dictionary"), {10, 8}, {30, 8});
}

TEST_F(ToolkitTest, OneDroppedFileIsOpened) {
  std::vector<std::string> opened;
  window.OnDroppedFile([&](const QString& path) { opened.push_back(path.toStdString()); });
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  const QUrl here = QUrl::fromLocalFile(file.fileName());
  OpenText("one two");
  const struct {
    QList<QUrl> urls;
    bool taken;
  } kCases[] = {{{here}, true},
                {{here, here}, false},
                {{QUrl(QStringLiteral("https://example.org/x.rtf"))}, false},
                {{QUrl::fromLocalFile(QDir::tempPath())}, false}};
  for (const auto& test : kCases) {
    QMimeData data;
    data.setUrls(test.urls);
    data.setText(QStringLiteral("a path"));
    for (QWidget* const widget :
         {View().viewport(), &Widget("Text2"), &Widget("AMarkSet"), window.centralWidget()}) {
      opened.clear();
      EXPECT_EQ(Drop(*widget, data), test.taken);
      EXPECT_EQ(opened.size(), test.taken ? 1U : 0U);
    }
  }
  EXPECT_EQ(form.RichTextBox1.Text(), U"one two");
  EXPECT_EQ(form.Text2.Text.Get(), U"Definition?");
  QMimeData data;
  data.setUrls({here});
  dialogs.ask = [&](const MessageBox&) {
    EXPECT_FALSE(Drop(*View().viewport(), data)) << "while a question is open";
    return Button::kOk;
  };
  opened.clear();
  Press("Parse_1");
  EXPECT_TRUE(opened.empty());
}

TEST_F(ToolkitTest, EveryBoxOfSeveralLinesTakesWhatIsTyped) {
  Choose("mnuDialogue_on");
  Choose("mnuVLK");
  for (const char* const name : {"User_Dialogue", "Infotext"}) {
    Press(name);
    Key(Qt::Key_A, Qt::ControlModifier);
    Keys("mine");
    EXPECT_EQ(dynamic_cast<TextBox&>(*form.Find(name)).Text.Get(), U"mine");
    ExpectShown(window, form);
  }
}

TEST_F(ToolkitTest, FormattedTextIsPastedAsPlainText) {
  OpenText("one ");
  Press("RichTextBox1");
  Key(Qt::Key_End);
  for (const char* const box : {"RichTextBox1", "AMarkedString", "UserID1"}) {
    auto* const data = new QMimeData;
    data->setHtml(QStringLiteral("<b>two</b> <i>three</i>"));
    QApplication::clipboard()->setMimeData(data);
    if (box == std::string("UserID1")) Choose("mnuUserID");
    if (box != std::string("RichTextBox1")) Press(box);
    if (box == std::string("UserID1")) Key(Qt::Key_A, Qt::ControlModifier);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  EXPECT_EQ(form.RichTextBox1.Text(), U"one two three");
  EXPECT_EQ(form.AMarkedString.Text.Get(), U"two three");
  EXPECT_EQ(form.UserID1.Text.Get(), U"two three");
  ExpectShown(window, form);
}

TEST_F(ToolkitTest, KeysThatBelongToTheWindow) {
  OpenText("one");
  Choose("mnuVLK");
  Choose("mnuUserID");
  Key(Qt::Key_Escape);
  EXPECT_FALSE(form.Infoframe.Visible);
  EXPECT_TRUE(form.IDFrame.Visible);
  Key(Qt::Key_Escape);
  EXPECT_FALSE(form.IDFrame.Visible);
  Key(Qt::Key_Escape);
  ExpectShown(window, form);
  disk.files.erase("x.tbf");
  dialogs.answers = {ScriptedDialogs::Proposed{}};
  Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(disk.Has("x.tbf"));
}

TEST_F(ToolkitTest, WhatIsCutOffIsToldWhole) {
  const QString tip = "Click here to insert an A-Marker into the text file";
  OpenText("one");
  const std::u32string wide(80, U'w');
  form.Parse_listbox.AddItem(U"short");
  form.Parse_listbox.AddItem(wide + U" < & >");
  form.marked_term.Text = wide;
  form.TypeCombo.Text = wide;
  Choose("mnuDialogue_off");
  const auto told = [&](QWidget& widget, const QPoint& place) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QApplication::sendEvent(&widget, &event);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  };
  auto& list = dynamic_cast<QAbstractItemView&>(Widget("Parse_listbox"));
  const auto row = [&](int index) {
    return list.visualRect(list.model()->index(index, 0)).topLeft() + QPoint(5, 3);
  };
  EXPECT_EQ(told(*list.viewport(), row(1)), ToQt(wide) + " < & >");
  EXPECT_EQ(told(*list.viewport(), row(0)), ToQt(form.Parse_listbox.Row().stored.toolTip));
  EXPECT_EQ(told(Widget("AMarkSet"), {5, 5}), tip);
  Choose("mnuPostProcess");
  EXPECT_EQ(told(Widget("marked_term"), {5, 5}), ToQt(wide));
  EXPECT_EQ(told(*Widget("TypeCombo").findChild<QLineEdit*>(), {5, 5}), ToQt(wide));
}

TEST_F(ToolkitTest, TheWaitingCursorShowsBeforeWorkBegins) {
  Qt::CursorShape shown = Qt::ArrowCursor;
  dialogs.ask = [&](const MessageBox&) {
    if (QApplication::overrideCursor() != nullptr) shown = QApplication::overrideCursor()->shape();
    return Button::kOk;
  };
  OpenText("one");
  Press("Parse_1");
  EXPECT_EQ(shown, Qt::WaitCursor);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// Not a device's event: if a failure passes through one of those, the toolkit leaks memory.
TEST_F(ToolkitTest, NoFailureLeavesAnEvent) {
  struct Fails : QWidget {
    bool event(QEvent* event) override {
      if (event->type() == QEvent::User) throw StatementFailed("no such item");
      return QWidget::event(event);
    }
  } widget;
  QEvent event(QEvent::User);
  EXPECT_NO_THROW(QApplication::sendEvent(&widget, &event));
}

}  // namespace
}  // namespace quill::test
