#include "window/edit_widgets.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextDocumentFragment>
#include <limits>

namespace quill {

QString PlainText(const QMimeData& data) {
  QString text =
      data.hasText() ? data.text() : QTextDocumentFragment::fromHtml(data.html()).toPlainText();
  text.remove(QChar::ObjectReplacementCharacter);
  return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

bool HasPlainText(const QMimeData& data) { return data.hasText() || data.hasHtml(); }

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent) {
  // It would cut at 32,767 characters.
  setMaxLength(std::numeric_limits<int>::max());
}

void LineEdit::Paste() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (data != nullptr) insert(PlainText(*data));
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) return Paste();
  QLineEdit::keyPressEvent(event);
}

// The toolkit's own menu, but for what it pastes.
void LineEdit::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* const menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (auto* const paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    paste->setEnabled(data != nullptr && HasPlainText(*data));
    disconnect(paste, &QAction::triggered, this, nullptr);
    connect(paste, &QAction::triggered, this, [this] { Paste(); });
  }
  menu->popup(event->globalPos());
}

SeveralLinesEdit::SeveralLinesEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
}

void SeveralLinesEdit::mousePressEvent(QMouseEvent* event) {
  // A press on selected characters would begin to drag them.
  if (event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier) {
    QTextCursor cursor = textCursor();
    cursor.clearSelection();
    setTextCursor(cursor);
  }
  QPlainTextEdit::mousePressEvent(event);
}

bool SeveralLinesEdit::canInsertFromMimeData(const QMimeData* source) const {
  return HasPlainText(*source);
}

void SeveralLinesEdit::insertFromMimeData(const QMimeData* source) {
  insertPlainText(PlainText(*source));
}

}  // namespace quill
