#include "window/text/document_view.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "window/page/page_layout.h"
#include "window/shared/edit_widgets.h"
#include "window/shared/shown.h"
#include "window/text/reveal.h"
#include "workbench/form1.h"

namespace quill {
namespace {

constexpr QKeySequence::StandardKey kMovements[] = {
    QKeySequence::MoveToNextChar,        QKeySequence::MoveToPreviousChar,
    QKeySequence::MoveToNextWord,        QKeySequence::MoveToPreviousWord,
    QKeySequence::MoveToNextLine,        QKeySequence::MoveToPreviousLine,
    QKeySequence::MoveToNextPage,        QKeySequence::MoveToPreviousPage,
    QKeySequence::MoveToStartOfLine,     QKeySequence::MoveToEndOfLine,
    QKeySequence::MoveToStartOfBlock,    QKeySequence::MoveToEndOfBlock,
    QKeySequence::MoveToStartOfDocument, QKeySequence::MoveToEndOfDocument,
    QKeySequence::SelectNextChar,        QKeySequence::SelectPreviousChar,
    QKeySequence::SelectNextWord,        QKeySequence::SelectPreviousWord,
    QKeySequence::SelectNextLine,        QKeySequence::SelectPreviousLine,
    QKeySequence::SelectNextPage,        QKeySequence::SelectPreviousPage,
    QKeySequence::SelectStartOfLine,     QKeySequence::SelectEndOfLine,
    QKeySequence::SelectStartOfBlock,    QKeySequence::SelectEndOfBlock,
    QKeySequence::SelectStartOfDocument, QKeySequence::SelectEndOfDocument,
};

// Whether a key stands for its text, and not for a command.
bool IsTyping(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty()) return false;
  const QChar first = text[0];
  if (first.category() == QChar::Other_Format) return true;
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::ControlModifier || modifiers.testFlag(Qt::MetaModifier) ||
      modifiers == (Qt::ControlModifier | Qt::ShiftModifier) || modifiers == Qt::AltModifier) {
    return false;
  }
  return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_PrivateUse;
}

}  // namespace

DocumentView::DocumentView(QWidget& parent, TextSurface& text, Actions& actions)
    : QTextEdit(&parent),
      text_(text),
      actions_(actions),
      pictures_(text.Doc(), positions_),
      decoration_(text.Doc(), positions_),
      rows_(text.Doc(), positions_) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setAttribute(Qt::WA_InputMethodEnabled);
  viewport()->setCursor(Qt::IBeamCursor);
  setTabChangesFocus(true);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void DocumentView::Exchange(std::unique_ptr<QTextDocument> document) {
  // The first one belongs to the toolkit, which deletes it by itself.
  const QPointer<QTextDocument> old = this->document();
  document->setParent(this);
  PageLayout& page = PageLayout::Of(*document);
  pictures_.Serve(*document);
  decoration_.Clear();
  rows_.Clear();
  page.AskRows([this](const QTextBlock& paragraph) { return rows_.Tell(paragraph); });
  zoom_.ApplyTo(page);
  page.MeasureLetters();
  place_.Stop();
  setDocument(document.release());
  place_.Start(page);
  preeditCaret_ = -1;
  delete old.data();
}

QTextCursor DocumentView::CursorAt(Range range) const {
  QTextCursor cursor(document());
  cursor.setPosition(positions_.ToWidget(range.begin));
  cursor.setPosition(positions_.ToWidget(range.end), QTextCursor::KeepAnchor);
  return cursor;
}

QRect DocumentView::PlaceOf(Range range) const {
  // Both are laid out before either is looked for: what lies above the other moves it.
  const QTextCursor begin = CursorAt({range.begin, range.begin});
  const QTextCursor end = CursorAt({range.end, range.end});
  const QRect first = cursorRect(begin);
  const QRect last = cursorRect(end);
  const QRect both = first.united(last);
  if (last.top() <= first.top()) return both;
  // Over several lines: all their width, and no more of them than a reader needs to begin.
  const int height = std::min(both.height(), viewport()->height() / 2);
  return {0, both.top(), viewport()->width(), height};
}

std::vector<QRect> DocumentView::Covers() const {
  std::vector<QRect> covers;
  const QObjectList& stack = parent()->children();
  for (qsizetype i = stack.indexOf(const_cast<DocumentView*>(this)) + 1; i < stack.size(); ++i) {
    const auto* const widget = qobject_cast<QWidget*>(stack[i]);
    if (widget == nullptr || widget->isWindow() || !widget->isVisible()) continue;
    const QRect cover =
        widget->rect().translated(viewport()->mapFromGlobal(widget->mapToGlobal(QPoint(0, 0))));
    if (cover.intersects(viewport()->rect())) covers.push_back(cover);
  }
  return covers;
}

void DocumentView::Reveal(Range range) {
  const QRect place = PlaceOf(range);
  const int viewHeight = viewport()->height();
  const std::vector<Band> bands = FreeBands(place, Covers(), viewHeight);
  const int around = 3 * cursorRect(CursorAt({range.begin, range.begin})).height();
  QScrollBar& bar = *verticalScrollBar();
  const std::optional<int> by = ScrollToSee(place, bands, around, bar.value());
  if (!by) return;
  const int value = bar.value() + *by;
  // The end of the text may have to leave the bottom, to come out from under a panel.
  if (bands.size() > 1) PageLayout::Of(*document()).ReachTo(value + viewHeight);
  bar.setValue(value);
}

// --- The caret -------------------------------------------------------------------------------

bool DocumentView::IsInUse() const { return hasFocus() || text_.Form().Focus() == &text_; }

void DocumentView::ShowSelection() {
  const QTextCursor wanted = CursorAt(text_.Selection());
  const QTextCursor shown = textCursor();
  // A selection that the user just made stays as it is, with its direction.
  if (shown.selectionStart() != wanted.selectionStart() ||
      shown.selectionEnd() != wanted.selectionEnd()) {
    KeepPlace([&] { setTextCursor(wanted); });
  }
  viewport()->update();
}

// --- Selecting -------------------------------------------------------------------------------

void DocumentView::ReportSelection() {
  const QTextCursor cursor = textCursor();
  const Position begin = positions_.ToModel(cursor.selectionStart());
  const Position end = positions_.ToModel(cursor.selectionEnd());
  actions_.Do([&](Program& program) { program.Select(begin, end - begin); });
  RestartCaret();
}

void DocumentView::SelectEverything() {
  selectAll();
  ReportSelection();
}

void DocumentView::mouseReleaseEvent(QMouseEvent* event) {
  QTextEdit::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) ReportSelection();
}

// --- Editing ---------------------------------------------------------------------------------

void DocumentView::keyPressEvent(QKeyEvent* event) {
  if (IsMovement(event)) {
    if (!MoveByLine(event)) QTextEdit::keyPressEvent(event);
    ReportSelection();
  } else if (EditKey(event) || ZoomKey(*event)) {
    event->accept();
  } else if (IsTyping(*event)) {
    Type(event->text());
  } else {
    event->ignore();
  }
}

bool DocumentView::IsMovement(QKeyEvent* event) const {
  return std::any_of(std::begin(kMovements), std::end(kMovements),
                     [&](QKeySequence::StandardKey key) { return event->matches(key); });
}

bool DocumentView::MoveByLine(QKeyEvent* event) {
  const auto matches = [event](QKeySequence::StandardKey move, QKeySequence::StandardKey select) {
    return event->matches(move) || event->matches(select);
  };
  const bool down = matches(QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine);
  if (!down && !matches(QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine)) {
    return false;
  }
  QTextCursor cursor = textCursor();
  const int x = cursor.verticalMovementX();
  const int place = PageLayout::Of(*document()).PlaceBeside(cursor.position(), x, down);
  if (place < 0) return false;
  const bool selects = event->modifiers().testFlag(Qt::ShiftModifier);
  cursor.setPosition(place, selects ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor);
  cursor.setVerticalMovementX(x);
  setTextCursor(cursor);
  ensureCursorVisible();
  return true;
}

bool DocumentView::EditKey(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->matches(QKeySequence::Undo)) {
    Undo();
  } else if (event->matches(QKeySequence::Redo)) {
    Redo();
  } else if (event->matches(QKeySequence::Cut)) {
    Cut();
  } else if (event->matches(QKeySequence::Copy)) {
    copy();
  } else if (event->matches(QKeySequence::Paste)) {
    Paste();
  } else if (event->matches(QKeySequence::SelectAll)) {
    SelectEverything();
  } else if (event->matches(QKeySequence::Delete)) {
    Delete(QTextCursor::NextCharacter);
  } else if (event->matches(QKeySequence::DeleteEndOfWord)) {
    Delete(QTextCursor::NextWord);
  } else if (event->matches(QKeySequence::DeleteStartOfWord)) {
    Delete(QTextCursor::PreviousWord);
  } else if (event->key() == Qt::Key_Backspace &&
             (event->modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier) {
    Delete(QTextCursor::PreviousCharacter);
  } else if (enter && event->modifiers() == Qt::ShiftModifier) {
    Type(QString(QChar::LineSeparator));
  } else if (enter) {
    Type(QStringLiteral("\n"));
  } else {
    return false;
  }
  return true;
}

void DocumentView::Type(const QString& text) {
  if (text.isEmpty()) return;
  actions_.Do([&](Program& program) {
    program.GoInto(text_);
    program.TypeInText(FromQt(text));
  });
  RestartCaret();
}

void DocumentView::Delete(QTextCursor::MoveOperation operation) {
  Range range = text_.Selection();
  if (range.Length() == 0) {
    // By what a reader sees as one character: a letter goes with its accents.
    QTextCursor cursor = CursorAt(range);
    cursor.movePosition(operation, QTextCursor::KeepAnchor);
    range = {positions_.ToModel(cursor.selectionStart()),
             positions_.ToModel(cursor.selectionEnd())};
  }
  actions_.Do([&](Program& program) {
    program.GoInto(text_);
    program.DeleteInText(range);
  });
  RestartCaret();
}

void DocumentView::DeleteSelection() {
  if (text_.Selection().Length() > 0) Delete(QTextCursor::NextCharacter);
}

void DocumentView::Undo() {
  actions_.Do([&](Program& program) {
    program.GoInto(text_);
    program.UndoInText();
  });
}

void DocumentView::Redo() {
  actions_.Do([&](Program& program) {
    program.GoInto(text_);
    program.RedoInText();
  });
}

void DocumentView::Cut() {
  copy();
  DeleteSelection();
}

void DocumentView::Paste() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  if (data != nullptr) insertFromMimeData(data);
}

QMimeData* DocumentView::createMimeDataFromSelection() const {
  const QTextCursor cursor = textCursor();
  const Range range{positions_.ToModel(cursor.selectionStart()),
                    positions_.ToModel(cursor.selectionEnd())};
  auto* const data = new QMimeData;
  data->setText(ToQt(text_.Doc().Text(range)));
  return data;
}

bool DocumentView::canInsertFromMimeData(const QMimeData* source) const {
  return HasPlainText(*source);
}

void DocumentView::insertFromMimeData(const QMimeData* source) { Type(PlainText(*source)); }

}  // namespace quill
