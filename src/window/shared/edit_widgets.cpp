#include "window/shared/edit_widgets.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextDocumentFragment>
#include <limits>

#include "window/shared/cut_text.h"

namespace quill {

QString PlainText(const QMimeData& data) {
  QString text =
      data.hasText() ? data.text() : QTextDocumentFragment::fromHtml(data.html()).toPlainText();
  text.remove(QChar::ObjectReplacementCharacter);
  return text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

bool HasPlainText(const QMimeData& data) { return data.hasText() || data.hasHtml(); }

LineEdit::LineEdit(QWidget* parent) : QLineEdit(parent) {
  // The default would cut text at 32,767 characters.
  setMaxLength(std::numeric_limits<int>::max());
}

bool LineEdit::IsCut() const {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const int room = style()->subElementRect(QStyle::SE_LineEditContents, &option, this).width();
  constexpr int kMargins = 4;
  return fontMetrics().horizontalAdvance(displayText()) > room - kMargins;
}

bool LineEdit::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip || !IsCut()) return QLineEdit::event(event);
  TellWhole(static_cast<const QHelpEvent&>(*event), text(), *this);
  return true;
}

void LineEdit::Paste() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (data != nullptr) insert(PlainText(*data));
}

void LineEdit::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste)) return Paste();
  QLineEdit::keyPressEvent(event);
}

// The toolkit's own menu, except for what it pastes.
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

bool SeveralLinesEdit::event(QEvent* event) {
  const bool isCut = verticalScrollBar()->maximum() > 0 && !verticalScrollBar()->isVisible();
  if (event->type() != QEvent::ToolTip || !isCut) return QPlainTextEdit::event(event);
  TellWhole(static_cast<const QHelpEvent&>(*event), toPlainText(), *this);
  return true;
}

void SeveralLinesEdit::mousePressEvent(QMouseEvent* event) {
  // A press on selected characters would start dragging them.
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
