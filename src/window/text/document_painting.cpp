// How the text is shown: under the highlight, with its caret, with what stands around it, and how
// large.
#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollBar>
#include <QStyleHints>
#include <QTextBlock>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "window/page/page_layout.h"
#include "window/shared/cut_text.h"
#include "window/text/document_view.h"
#include "window/text/mark_names.h"

namespace quill {
namespace {

// Under the highlight the marks keep their own colours: they are what the user looks at.
const QColor kHighlight(0xbf, 0xdb, 0xfa);
const QColor kHighlightWithoutFocus(0xd5, 0xe2, 0xf0);

// What of a line is selected, from its first to its last selected character.
QRect SelectedPart(const QTextBlock& block, const QTextLine& line, const QTextCursor& cursor) {
  const int first = line.textStart();
  const int last = first + line.textLength();
  const int begin = std::clamp(cursor.selectionStart() - block.position(), first, last);
  const int end = std::clamp(cursor.selectionEnd() - block.position(), first, last);
  if (begin == end) return {};
  const double from = line.cursorToX(begin);
  const double to = line.cursorToX(end);
  const QPointF place = block.layout()->position();
  return QRectF(place.x() + std::min(from, to), place.y() + line.y(), std::abs(to - from),
                line.height())
      .toAlignedRect();
}

}  // namespace

void DocumentView::resizeEvent(QResizeEvent* event) {
  KeepPlace([&] { QTextEdit::resizeEvent(event); });
}

void DocumentView::scrollContentsBy(int dx, int dy) {
  if (place_.IsMoving()) {
    viewport()->update();
    return;
  }
  QTextEdit::scrollContentsBy(dx, dy);
  place_.Scrolled();
}

void DocumentView::paintEvent(QPaintEvent* event) {
  KeepPlace([] {});
  QPainter painter(viewport());
  const QPoint offset(horizontalScrollBar()->value(), verticalScrollBar()->value());
  painter.translate(-offset);
  const QRect clip = event->rect().translated(offset);
  const QRegion above = AboveSelection(clip);
  painter.setClipRegion(QRegion(clip) - above);
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
  // What a paragraph has around it may reach into what is above it.
  const QTextBlock top = PageLayout::Of(*document()).ParagraphAt(clip.top());
  const QTextBlock first = top.previous().isValid() ? top.previous() : top;
  decoration_.DrawBehind(painter, first, clip.bottom());
  document()->documentLayout()->draw(&painter, context);
  if (!above.isEmpty()) {
    context.selections.clear();
    painter.setClipRegion(above);
    document()->documentLayout()->draw(&painter, context);
  }
  painter.setClipRect(clip);
  decoration_.Draw(painter, first, clip.bottom());
}

// Raised characters stand out of the top of their line. There the toolkit cuts off the selected
// ones, and in the first line of a paragraph with a selection all. These strips are painted by
// themselves, as if nothing were selected.
QRegion DocumentView::AboveSelection(const QRect& clip) const {
  const QTextCursor cursor = textCursor();
  if (!cursor.hasSelection()) return {};
  const QTextBlock first = document()->findBlock(cursor.selectionStart());
  const PageLayout& page = PageLayout::Of(*document());
  QTextBlock block = std::max(page.ParagraphAt(clip.top()), first);
  QRegion selected;
  QRegion above;
  for (; block.isValid() && block.position() < cursor.selectionEnd(); block = block.next()) {
    if (page.TopOf(block) > clip.bottom() + viewport()->height()) break;
    const QTextLayout& layout = *block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
      const QTextLine line = layout.lineAt(i);
      const int top = static_cast<int>(std::floor(layout.position().y() + line.y()));
      const int height = static_cast<int>(std::ceil(line.height()));
      // Lines far from what is painted: a paragraph may have very many.
      if (top + height < clip.top()) continue;
      if (top - height > clip.bottom() && RowOf(block) == nullptr) break;
      if (i == 0) above += QRect(clip.left(), top - height, clip.width(), height);
      const QRect part = SelectedPart(block, line, cursor);
      selected += part;
      above += part.translated(0, -part.height());
    }
  }
  return (above - selected) & clip;
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
  QTextEdit::focusInEvent(event);
  RestartCaret();
}

void DocumentView::focusOutEvent(QFocusEvent* event) {
  QTextEdit::focusOutEvent(event);
  RestartCaret();
}

// --- Marks in words --------------------------------------------------------------------------

bool DocumentView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip && ShowMarkName(static_cast<QHelpEvent&>(*event))) {
    return true;
  }
  return QTextEdit::viewportEvent(event);
}

bool DocumentView::ShowMarkName(const QHelpEvent& event) {
  if (const QString note = NoteUnder(event.pos()); !note.isEmpty()) {
    TellWhole(event, note, *viewport());
    return true;
  }
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const int at =
      document()->documentLayout()->hitTest(QPointF(event.pos() + scrolled), Qt::ExactHit);
  if (at < 0) return false;
  const Position position = positions_.ToModel(at);
  const QString name = MarkNameAt(text_.Doc(), {position, position});
  if (name.isEmpty()) return false;
  QToolTip::showText(event.globalPos(), name, viewport());
  return true;
}

QString DocumentView::NoteUnder(QPoint point) const {
  constexpr double kReach = 6;
  const QTextCursor cursor = cursorForPosition(point);
  const QRect gap = cursorRect(cursor);
  const double away = std::abs(gap.center().x() - point.x());
  const bool isNear = away <= kReach * PageLayout::Of(*document()).ThePage().scale &&
                      point.y() >= gap.top() && point.y() <= gap.bottom();
  return isNear ? decoration_.Notes().TextAt(positions_.ToModel(cursor.position())) : QString();
}

QString DocumentView::NameAtCaret() const {
  const Range selection = text_.Selection();
  QStringList names{MarkNameAt(text_.Doc(), selection)};
  if (selection.Length() == 0) names += decoration_.Notes().TextAt(selection.begin);
  names.removeAll(QString());
  return names.join(QStringLiteral("; "));
}

// --- Zoom ------------------------------------------------------------------------------------

void DocumentView::ZoomBy(int steps) {
  if (zoom_.Step(steps)) ShowZoom();
}

void DocumentView::ZoomBack() {
  if (zoom_.Reset()) ShowZoom();
}

void DocumentView::ShowZoom() {
  const bool caretIsSeen = viewport()->rect().intersects(cursorRect());
  KeepPlace([this] { zoom_.ApplyTo(PageLayout::Of(*document())); });
  if (caretIsSeen && IsInUse()) ensureCursorVisible();
  updateMicroFocus();
}

void DocumentView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QTextEdit::wheelEvent(event);
    return;
  }
  wheel_ += event->angleDelta().y();
  const int steps = wheel_ / QWheelEvent::DefaultDeltasPerStep;
  wheel_ %= QWheelEvent::DefaultDeltasPerStep;
  ZoomBy(steps);
  event->accept();
}

bool DocumentView::ZoomKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers others =
      event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
  if (others != Qt::ControlModifier) return false;
  switch (event.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      ZoomBy(1);
      return true;
    case Qt::Key_Minus:
      ZoomBy(-1);
      return true;
    case Qt::Key_0:
      ZoomBack();
      return true;
    default:
      return false;
  }
}

}  // namespace quill
