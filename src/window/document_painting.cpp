// How the text is painted: under the highlight, with its caret, and with what stands around it.
#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QTextBlock>

#include "window/document_view.h"

namespace quill {
namespace {

// Under the highlight the marks keep their own colours: they are what the user looks at.
const QColor kHighlight(0xbf, 0xdb, 0xfa);
const QColor kHighlightWithoutFocus(0xd5, 0xe2, 0xf0);

}  // namespace

void DocumentView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  const QPoint offset(horizontalScrollBar()->value(), verticalScrollBar()->value());
  painter.translate(-offset);
  const QRect clip = event->rect().translated(offset);
  painter.setClipRect(clip);
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = clip;
  context.palette = palette();
  context.cursorPosition = CaretPosition();
  if (textCursor().hasSelection()) {
    QAbstractTextDocumentLayout::Selection selection;
    selection.cursor = textCursor();
    selection.format.setBackground(hasFocus() ? kHighlight : kHighlightWithoutFocus);
    context.selections.append(selection);
  }
  document()->documentLayout()->draw(&painter, context);
  const QTextCursor top = cursorForPosition(event->rect().topLeft());
  decoration_.Draw(painter, top.block().previous().isValid() ? top.block().previous() : top.block(),
                   clip.bottom());
}

int DocumentView::CaretPosition() const {
  if (!caretOn_ || !hasFocus()) return -1;
  // The layout's way to say: inside the preedit text.
  if (preeditCaret_ >= 0) return -(preeditCaret_ + 2);
  return textCursor().position();
}

void DocumentView::RestartCaret() {
  caretOn_ = hasFocus();
  blink_.stop();
  const int period = QGuiApplication::styleHints()->cursorFlashTime();
  if (caretOn_ && period > 1) blink_.start(period / 2, this);
  viewport()->update();
}

void DocumentView::timerEvent(QTimerEvent* event) {
  if (event->timerId() != blink_.timerId()) {
    QTextEdit::timerEvent(event);
    return;
  }
  caretOn_ = !caretOn_;
  viewport()->update(cursorRect().adjusted(-2, -2, 2, 2));
}

void DocumentView::focusInEvent(QFocusEvent* event) {
  PlaceCaret();
  QTextEdit::focusInEvent(event);
  RestartCaret();
}

void DocumentView::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  RestartCaret();
}

}  // namespace quill
