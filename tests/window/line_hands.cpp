#include "line_hands.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QToolButton>
#include <QUrl>
#include <QWheelEvent>
#include <QtTest>
#include <memory>

namespace quill::test {
namespace {

Qt::MouseButton Button(const QString& word) {
  if (word == QLatin1String("right")) return Qt::RightButton;
  return word == QLatin1String("middle") ? Qt::MiddleButton : Qt::LeftButton;
}

Qt::KeyboardModifiers Modifiers(const QString& word) {
  Qt::KeyboardModifiers modifiers;
  modifiers.setFlag(Qt::ControlModifier, word.contains(QLatin1String("ctrl")));
  modifiers.setFlag(Qt::ShiftModifier, word.contains(QLatin1String("shift")));
  modifiers.setFlag(Qt::AltModifier, word.contains(QLatin1String("alt")));
  return modifiers;
}

std::unique_ptr<QMimeData> Data(const QString& kind, const QString& text) {
  auto data = std::make_unique<QMimeData>();
  if (kind == QLatin1String("html")) {
    data->setHtml(text);
  } else if (kind == QLatin1String("file")) {
    data->setUrls({QUrl::fromLocalFile(QDir::current().filePath(text))});
  } else {
    data->setText(text);
  }
  return data;
}

// The widget that keys go to; nobody has the focus in a window that is not active.
QWidget* KeyTarget(QWidget& window) {
  QWidget* const focus = QApplication::focusWidget();
  return focus != nullptr ? focus : &window;
}

void PressKeys(QWidget& target, const QString& keys) {
  const QKeySequence sequence = QKeySequence::fromString(keys, QKeySequence::PortableText);
  const QKeyCombination combination = sequence[0];
  QTest::keyClick(&target, combination.key(), combination.keyboardModifiers());
}

}  // namespace

std::string LineHands::Encoded(const QString& text) {
  return text.toUtf8().toPercentEncoding().toStdString();
}

QString LineHands::Decoded(const QString& word) {
  return QString::fromUtf8(QByteArray::fromPercentEncoding(word.toUtf8()));
}

void LineHands::Do(const std::string& line) {
  const QStringList words = QString::fromStdString(line).split(QLatin1Char(' '));
  const QString& verb = words[0];
  const auto is = [&](const char* name) { return verb == QLatin1String(name); };
  if (is("click") || is("double") || is("triple") || is("drag")) {
    Mouse(words);
  } else if (is("context")) {
    OpenContextMenu(At(words, 1));
  } else if (is("wheel")) {
    Wheel(words);
  } else if (is("key")) {
    PressKeys(*KeyTarget(window_), words[1]);
  } else if (is("letter")) {
    Letter(Decoded(words[1]));
  } else if (is("compose")) {
    Compose(Decoded(words[1]), Decoded(words[2]));
  } else if (is("clipboard")) {
    QGuiApplication::clipboard()->setMimeData(Data(words[1], Decoded(words[2])).release());
  } else if (is("drop")) {
    Drop(words);
  } else if (is("menu")) {
    ChooseItem(words[1].toLatin1().constData());
  } else if (is("popup")) {
    UsePopup(words);
  } else if (is("resize")) {
    window_.resize(words[1].toInt(), words[2].toInt());
  } else if (is("away")) {
    GoAway();
  } else if (is("close")) {
    window_.close();
  } else {
    throw std::logic_error("no such line: " + line);
  }
  QApplication::processEvents();
  // Without a window manager, no window is active after a dialog has closed.
  if (QApplication::activeWindow() == nullptr) window_.activateWindow();
  QApplication::processEvents();
}

LineHands::Target LineHands::TargetOf(const std::string& line) const {
  const QStringList words = QString::fromStdString(line).split(QLatin1Char(' '));
  for (const char* verb : {"click", "double", "triple", "drag"}) {
    if (words[0] == QLatin1String(verb)) return At(words, 3);
  }
  if (words[0] == QLatin1String("context")) return At(words, 1);
  for (const char* verb : {"wheel", "drop"}) {
    if (words[0] == QLatin1String(verb)) return At(words, 2);
  }
  return {};
}

LineHands::Target LineHands::At(const QStringList& words, qsizetype control) const {
  const QWidget& widget = Widget(words[control].toLatin1().constData());
  const QPoint place(words[control + 1].toInt(), words[control + 2].toInt());
  const QPoint inWindow = widget.mapTo(&window_, place);
  QWidget* const there = window_.childAt(inWindow);
  // The menu of the bar's own button, in a narrow window, blocks until it is closed.
  if (there == nullptr || qobject_cast<QToolButton*>(there) != nullptr) return {};
  return {there, there->mapFrom(&window_, inWindow)};
}

// --- The mouse -------------------------------------------------------------------------------

void LineHands::Mouse(const QStringList& words) {
  const Target target = At(words, 3);
  if (target.widget == nullptr) return;
  const Qt::MouseButton button = Button(words[1]);
  const Qt::KeyboardModifiers modifiers = Modifiers(words[2]);
  if (words[0] == QLatin1String("drag")) {
    const QPoint way =
        QPoint(words[6].toInt(), words[7].toInt()) - QPoint(words[4].toInt(), words[5].toInt());
    Drag(*target.widget, target.point, target.point + way, button, modifiers);
    return;
  }
  QTest::mouseClick(target.widget, button, modifiers, target.point);
  if (words[0] == QLatin1String("click")) return;
  // The first click may have brought something else to that place.
  if (At(words, 3).widget != target.widget) return;
  QTest::mouseDClick(target.widget, button, modifiers, target.point);
  QTest::mouseRelease(target.widget, button, modifiers, target.point);
  if (words[0] == QLatin1String("triple")) {
    QTest::mouseClick(target.widget, button, modifiers, target.point);
  }
}

void LineHands::OpenContextMenu(const Target& target) {
  // The menu of a scroll bar blocks until it is closed.
  if (target.widget == nullptr || qobject_cast<QScrollBar*>(target.widget) != nullptr) return;
  QTest::mouseClick(target.widget, Qt::RightButton, {}, target.point);
  QContextMenuEvent event(QContextMenuEvent::Mouse, target.point,
                          target.widget->mapToGlobal(target.point));
  QApplication::sendEvent(target.widget, &event);
}

void LineHands::Wheel(const QStringList& words) {
  const Target target = At(words, 2);
  if (target.widget == nullptr) return;
  QWheelEvent turn(target.point, target.widget->mapToGlobal(target.point), {},
                   {0, words[5].toInt()}, Qt::NoButton, Modifiers(words[1]), Qt::NoScrollPhase,
                   false);
  QApplication::sendEvent(target.widget, &turn);
}

void LineHands::Drop(const QStringList& words) {
  const Target target = At(words, 2);
  if (target.widget == nullptr) return;
  const std::unique_ptr<QMimeData> data = Data(words[1], Decoded(words[5]));
  constexpr Qt::DropActions kActions = Qt::CopyAction | Qt::MoveAction;
  QDragEnterEvent enter(target.point, kActions, data.get(), Qt::LeftButton, {});
  QApplication::sendEvent(target.widget, &enter);
  if (!enter.isAccepted()) return;
  QDropEvent drop(target.point, kActions, data.get(), Qt::LeftButton, {});
  QApplication::sendEvent(target.widget, &drop);
}

// --- The keyboard ----------------------------------------------------------------------------

void LineHands::Letter(const QString& text) {
  QWidget* const target = QApplication::focusWidget();
  if (target == nullptr) return;
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, Qt::Key_unknown, {}, text);
    QApplication::sendEvent(target, &event);
  }
}

void LineHands::Compose(const QString& preedit, const QString& commit) {
  QWidget* const target = QApplication::focusWidget();
  if (target == nullptr || !target->testAttribute(Qt::WA_InputMethodEnabled)) return;
  QInputMethodEvent composing(preedit, {});
  QApplication::sendEvent(target, &composing);
  QInputMethodEvent done;
  done.setCommitString(commit);
  QApplication::sendEvent(target, &done);
}

// --- What opens and closes ---------------------------------------------------------------------

void LineHands::ChooseItem(const char* item) {
  QMenuBar& bar = *window_.menuBar();
  // Beside the titles: a bar that the keyboard opened, or that a popup passed a press on to without
  // its release, would close the menu that the next press opens.
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.rect().bottomRight());
  Choose(item);
}

void LineHands::UsePopup(const QStringList& words) {
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr) return;
  if (words[1] == QLatin1String("away")) {
    // Clear of the menu bar, which would wait for the release of the button.
    const QPoint place(popup->width() + 5, popup->height() + 5);
    QMouseEvent outside(QEvent::MouseButtonPress, place, popup->mapToGlobal(place), Qt::LeftButton,
                        Qt::LeftButton, {});
    QApplication::sendEvent(popup, &outside);
    popup->close();
  } else if (words[1] == QLatin1String("key")) {
    QWidget* const focus = popup->focusWidget();
    PressKeys(focus != nullptr ? *focus : *popup, words[2]);
  } else if (auto* const menu = qobject_cast<QMenu*>(popup)) {
    QAction* const action = menu->actions().value(words[2].toInt());
    if (action != nullptr) {
      QTest::mouseMove(menu, menu->actionGeometry(action).center());
      QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    }
  } else if (auto* const rows = popup->findChild<QAbstractItemView*>()) {
    const QModelIndex row = rows->model()->index(words[2].toInt(), 0);
    // A list that has dropped down takes a click as a pick only some time after it opened.
    QTest::qWait(QApplication::doubleClickInterval() + 1);
    QTest::mouseMove(rows->viewport(), rows->visualRect(row).center());
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, rows->visualRect(row).center());
  }
}

void LineHands::GoAway() {
  QWidget other;
  other.show();
  other.activateWindow();
  QApplication::processEvents();
  window_.activateWindow();
  QApplication::processEvents();
}

}  // namespace quill::test
