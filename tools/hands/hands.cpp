#include "hands/hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <functional>

namespace quill {
namespace {

std::string NameOf(const QWidget& widget) { return widget.objectName().toStdString(); }

// Of a widget or a part of it, in its own pixels.
void CheckReach(const QWidget& window, const QWidget& widget, const QPoint& place) {
  if (!widget.isVisible()) throw HandsFailed(NameOf(widget) + " is hidden");
  if (!widget.isEnabled()) throw HandsFailed(NameOf(widget) + " is out of use");
  const QWidget* const there = window.childAt(widget.mapTo(&window, place));
  if (there == nullptr) throw HandsFailed(NameOf(widget) + " is outside the window");
  if (there != &widget && !widget.isAncestorOf(there)) {
    throw HandsFailed(NameOf(widget) + " is covered by " + NameOf(*there));
  }
}

template <class W>
W& As(QWidget& widget) {
  if (auto* const as = qobject_cast<W*>(&widget)) return *as;
  throw HandsFailed(NameOf(widget) + " is no " + W::staticMetaObject.className());
}

QModelIndex Row(const QAbstractItemView& view, const std::string& name, int row) {
  const QModelIndex index = view.model()->index(row, 0);
  if (!index.isValid()) throw HandsFailed(name + " has no row " + std::to_string(row));
  return index;
}

// Menus are windows of their own.
void ClickIn(QWidget& menu, const QRect& item) {
  QTest::mouseMove(&menu, item.center());
  QTest::mouseClick(&menu, Qt::LeftButton, {}, item.center());
}

// Opened by the mouse or, where a narrow bar has no room for the title, as its letter does.
void OpenMenu(QMenuBar& bar, QAction& title) {
  const QToolButton* const more = Hands::MoreTitles(bar);
  const QRect place = bar.actionGeometry(&title);
  if (more == nullptr || place.right() < more->x()) return ClickIn(bar, place);
  bar.setActiveAction(&title);
}

// One notch after the other, until the place, in pixels of the viewport, is seen.
void Wheel(QAbstractScrollArea& area, const std::function<QRect()>& place) {
  QWidget& viewport = *area.viewport();
  const QPoint middle = viewport.rect().center();
  while (!viewport.rect().contains(place())) {
    const int before = area.verticalScrollBar()->value();
    QWheelEvent turn(middle, viewport.mapToGlobal(middle), {}, {0, place().top() < 0 ? 120 : -120},
                     Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&viewport, &turn);
    if (area.verticalScrollBar()->value() == before) {
      throw HandsFailed("the wheel over " + NameOf(area) + " does not reach the place");
    }
  }
}

}  // namespace

QWidget& Hands::Widget(const char* name) const {
  auto* const widget = window_.findChild<QWidget*>(QString::fromLatin1(name));
  if (widget == nullptr) throw HandsFailed(std::string("there is no ") + name);
  return *widget;
}

QTextEdit& Hands::View() const { return As<QTextEdit>(Widget("RichTextBox1")); }

std::string Hands::FocusName() const {
  const QWidget* const widget = QApplication::focusWidget();
  return widget != nullptr ? NameOf(*widget) : "";
}

QToolButton* Hands::MoreTitles(const QMenuBar& bar) {
  auto* const more = bar.findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
  return more != nullptr && more->isVisible() ? more : nullptr;
}

QAction& Hands::Item(const char* name) const {
  auto* const action = window_.findChild<QAction*>(QString::fromLatin1(name));
  if (action == nullptr) throw HandsFailed(std::string("there is no ") + name);
  if (!action->isEnabled()) throw HandsFailed(std::string(name) + " is out of use");
  return *action;
}

// --- The mouse -------------------------------------------------------------------------------

void Hands::Press(const char* name) {
  QWidget& widget = Widget(name);
  CheckReach(window_, widget, widget.rect().center());
  QTest::mouseClick(&widget, Qt::LeftButton);
}

void Hands::Choose(const char* menuItem) {
  QAction& item = Item(menuItem);
  for (QAction* const title : window_.menuBar()->actions()) {
    QMenu& menu = *title->menu();
    if (!menu.actions().contains(&item)) continue;
    OpenMenu(*window_.menuBar(), *title);
    if (!menu.isVisible()) throw HandsFailed(std::string("no menu opened for ") + menuItem);
    ClickIn(menu, menu.actionGeometry(&item));
    return;
  }
  throw HandsFailed(std::string(menuItem) + " is in no menu");
}

void Hands::PickRow(const char* combo, int row) {
  auto& box = As<QComboBox>(Widget(combo));
  const QPoint arrow(box.width() - 6, box.height() / 2);
  CheckReach(window_, box, arrow);
  QTest::mouseClick(&box, Qt::LeftButton, {}, arrow);
  QAbstractItemView& rows = *box.view();
  if (!rows.isVisible()) throw HandsFailed(std::string("no list dropped down from ") + combo);
  const QModelIndex index = Row(rows, combo, row);
  // A drop-down list takes a click for a pick only some time after it opened.
  QTest::qWait(QApplication::doubleClickInterval() + 20);
  rows.scrollTo(index);
  ClickIn(*rows.viewport(), rows.visualRect(index));
}

void Hands::Pick(const char* combo, const char* row) {
  const auto& box = As<QComboBox>(Widget(combo));
  for (int i = 0; i < box.count(); ++i) {
    if (box.itemText(i).trimmed() == QString::fromUtf8(row)) return PickRow(combo, i);
  }
  throw HandsFailed(std::string(combo) + " has no row \"" + row + "\"");
}

void Hands::ClickRow(const char* list, int row) {
  auto& view = As<QAbstractItemView>(Widget(list));
  const QRect line = view.visualRect(Row(view, list, row));
  const QPoint place(10, line.center().y());
  if (!view.viewport()->rect().contains(place)) {
    throw HandsFailed(std::string(list) + ": row " + std::to_string(row) + " is out of sight");
  }
  CheckReach(window_, *view.viewport(), place);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
}

void Hands::WheelToRow(const char* list, int row) {
  auto& view = As<QAbstractItemView>(Widget(list));
  const QModelIndex index = Row(view, list, row);
  // A row may be wider than the list.
  Wheel(view, [&] {
    const QRect line = view.visualRect(index);
    return QRect(0, line.top(), 1, line.height());
  });
}

void Hands::Drag(QWidget& widget, const QPoint& from, const QPoint& to, Qt::MouseButton button,
                 Qt::KeyboardModifiers modifiers) {
  QTest::mousePress(&widget, button, modifiers, from);
  QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, button, modifiers);
  QApplication::sendEvent(&widget, &move);
  QTest::mouseRelease(&widget, button, modifiers, to);
}

// --- The keyboard ----------------------------------------------------------------------------

void Hands::Keys(const char* text) {
  if (FocusName().empty()) throw HandsFailed(std::string("nothing takes the keys of ") + text);
  QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
}

void Hands::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  if (QApplication::focusWidget() == nullptr) throw HandsFailed("nothing takes a key");
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Hands::Replace(const char* box, const char* text) {
  Press(box);
  Key(Qt::Key_A, Qt::ControlModifier);
  Keys(text);
}

// --- The text --------------------------------------------------------------------------------

QPoint Hands::PointAt(Position at) const {
  QTextCursor cursor(View().document());
  cursor.setPosition(static_cast<int>(at));
  const QPoint place = View().cursorRect(cursor).center();
  if (cursor.position() != at || !View().viewport()->rect().contains(place)) {
    throw HandsFailed("position " + std::to_string(at) + " of the text is out of sight");
  }
  CheckReach(window_, *View().viewport(), place);
  return place;
}

void Hands::DragOver(Position begin, Position end) {
  QWidget& viewport = *View().viewport();
  const QPoint first = PointAt(begin);
  const QPoint last = PointAt(end);
  Drag(viewport, first, last);
}

void Hands::WheelTo(Position at) {
  QTextCursor cursor(View().document());
  cursor.setPosition(static_cast<int>(at));
  Wheel(View(), [&] { return View().cursorRect(cursor); });
}

}  // namespace quill
