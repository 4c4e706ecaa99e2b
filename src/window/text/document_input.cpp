// The other ways into the text: the context menu and input methods.
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "window/shared/edit_widgets.h"
#include "window/text/document_view.h"

namespace quill {

void DocumentView::contextMenuEvent(QContextMenuEvent* event) {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const auto add = [&](const char* caption, QKeySequence::StandardKey key, bool enabled,
                       auto member) {
    QAction* const action = menu->addAction(QString::fromLatin1(caption), this, member);
    action->setShortcut(key);
    action->setEnabled(enabled);
  };
  const bool selected = text_.Selection().Length() > 0;
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  add("&Undo", QKeySequence::Undo, text_.CanUndo(), &DocumentView::Undo);
  add("&Redo", QKeySequence::Redo, text_.CanRedo(), &DocumentView::Redo);
  menu->addSeparator();
  add("Cu&t", QKeySequence::Cut, selected, &DocumentView::Cut);
  add("&Copy", QKeySequence::Copy, selected, &QTextEdit::copy);
  add("&Paste", QKeySequence::Paste, data != nullptr && HasPlainText(*data), &DocumentView::Paste);
  add("&Delete", QKeySequence::UnknownKey, selected, &DocumentView::DeleteSelection);
  menu->addSeparator();
  add("Select &all", QKeySequence::SelectAll, text_.Length() > 0, &DocumentView::SelectEverything);
  menu->addSeparator();
  add("Zoom &in", QKeySequence::ZoomIn, zoom_.Percent() < Zoom::kMost, [this] { ZoomBy(1); });
  add("Zoom &out", QKeySequence::ZoomOut, zoom_.Percent() > Zoom::kLeast, [this] { ZoomBy(-1); });
  add("&Normal size", QKeySequence::UnknownKey, zoom_.Percent() != 100, [this] { ZoomBack(); });
  menu->popup(event->globalPos());
}

// --- Input methods ---------------------------------------------------------------------------

void DocumentView::inputMethodEvent(QInputMethodEvent* event) {
  const QString commit = event->commitString();
  if (!commit.isEmpty() || event->replacementLength() > 0) {
    QInputMethodEvent nothing;
    ShowPreedit(nothing);
    if (event->replacementLength() > 0) {
      const int begin = textCursor().position() + event->replacementStart();
      QTextCursor cursor = textCursor();
      cursor.setPosition(std::max(begin, 0));
      cursor.setPosition(
          std::min(begin + event->replacementLength(), document()->characterCount() - 1),
          QTextCursor::KeepAnchor);
      setTextCursor(cursor);
      ReportSelection();
      if (commit.isEmpty()) DeleteSelection();
    }
    Type(commit);
  }
  ShowPreedit(*event);
  event->accept();
}

void DocumentView::ShowPreedit(const QInputMethodEvent& event) {
  const QTextCursor cursor = textCursor();
  const QTextBlock block = document()->findBlock(cursor.selectionStart());
  const int begin = cursor.selectionStart() - block.position();
  const QString& preedit = event.preeditString();
  if (preedit.isEmpty() && preeditCaret_ < 0) return;
  preeditCaret_ = preedit.isEmpty() ? -1 : static_cast<int>(preedit.size());
  QList<QTextLayout::FormatRange> styles;
  for (const QInputMethodEvent::Attribute& attribute : event.attributes()) {
    if (preedit.isEmpty()) break;
    if (attribute.type == QInputMethodEvent::Cursor) {
      preeditCaret_ = attribute.start;
    } else if (attribute.type == QInputMethodEvent::TextFormat) {
      QTextCharFormat style = cursor.charFormat();
      style.merge(qvariant_cast<QTextFormat>(attribute.value));
      styles.append({begin + attribute.start, attribute.length, style});
    }
  }
  block.layout()->setPreeditArea(preedit.isEmpty() ? -1 : begin, preedit);
  block.layout()->setFormats(styles);
  document()->markContentsDirty(block.position(), block.length());
  RestartCaret();
  updateMicroFocus();
}

QVariant DocumentView::inputMethodQuery(Qt::InputMethodQuery property) const {
  // To the toolkit the text is read-only; to an input method it is not.
  if (property == Qt::ImEnabled) return isEnabled();
  if (property == Qt::ImReadOnly) return false;
  return QTextEdit::inputMethodQuery(property);
}

}  // namespace quill
