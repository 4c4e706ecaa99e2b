#include "user.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>
#include <QtTest>

namespace quill::test {
namespace {

// In a text without characters beyond U+FFFF, or in front of the first.
QPoint PointAt(QTextEdit& view, Position at) {
  QTextCursor cursor(view.document());
  cursor.setPosition(static_cast<int>(at));
  return view.cursorRect(cursor).center();
}

}  // namespace

WindowTest::WindowTest() {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

void WindowTest::OpenText(const std::string& body) {
  disk.files["x.rtf"] =
      R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0 Times New Roman;}}\f0 )" + body + "}";
  Press("CloseIDFrame");
  dialogs.answers = {std::u32string(U"x.rtf"), ScriptedDialogs::Proposed{}};
  Choose("mnuFileOpen");
}

QWidget& WindowTest::Widget(const char* name) const {
  auto* const widget = window.findChild<QWidget*>(QString::fromLatin1(name));
  if (widget == nullptr) throw std::logic_error(std::string("no widget ") + name);
  return *widget;
}

void WindowTest::Press(const char* name) { QTest::mouseClick(&Widget(name), Qt::LeftButton); }

void WindowTest::Choose(const char* menuItem) {
  window.findChild<QAction*>(QString::fromLatin1(menuItem))->trigger();
}

void WindowTest::PickRow(const char* combo, int row) {
  auto& box = dynamic_cast<QComboBox&>(Widget(combo));
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 6, box.height() / 2));
  QAbstractItemView& rows = *box.view();
  const QRect place = rows.visualRect(box.model()->index(row, 0));
  // A drop-down list takes a click for a pick only some time after it opened.
  QTest::qWait(QApplication::doubleClickInterval() + 20);
  QTest::mouseMove(rows.viewport(), place.center());
  QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, place.center());
}

void WindowTest::ClickRow(const char* list, int row) {
  auto& view = dynamic_cast<QAbstractItemView&>(Widget(list));
  const QRect place = view.visualRect(view.model()->index(row, 0));
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {10, place.center().y()});
}

void WindowTest::Keys(const char* text) {
  QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
}

void WindowTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void WindowTest::DragOver(Position begin, Position end) {
  QWidget& viewport = *View().viewport();
  const QPoint last = PointAt(View(), end);
  QTest::mousePress(&viewport, Qt::LeftButton, {}, PointAt(View(), begin));
  QMouseEvent move(QEvent::MouseMove, last, viewport.mapToGlobal(last), Qt::NoButton,
                   Qt::LeftButton, {});
  QApplication::sendEvent(&viewport, &move);
  QTest::mouseRelease(&viewport, Qt::LeftButton, {}, last);
}

QTextEdit& WindowTest::View() const { return dynamic_cast<QTextEdit&>(Widget("RichTextBox1")); }

std::string WindowTest::FocusName() const {
  const QWidget* const widget = QApplication::focusWidget();
  return widget != nullptr ? widget->objectName().toStdString() : "";
}

}  // namespace quill::test
