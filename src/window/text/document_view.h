// The widget of the text. It shows a document and moves caret and selection; every change of
// characters goes to the program and comes back from it. Therefore it is read-only to the toolkit,
// which knows too many ways around: drops, pastes, input methods, its own undo.
#pragma once

#include <QBasicTimer>
#include <QTextEdit>
#include <functional>
#include <memory>
#include <vector>

#include "window/page/place_keeper.h"
#include "window/page/zoom.h"
#include "window/shared/actions.h"
#include "window/text/paragraph_decoration.h"
#include "window/text/position_map.h"
#include "window/text/table_rows.h"
#include "window/text/text_pictures.h"

class QMimeData;

namespace quill {

class DocumentView final : public QTextEdit {
 public:
  DocumentView(QWidget& parent, TextSurface& text, Actions& actions);

  // Puts another document on show, which the view then owns.
  void Exchange(std::unique_ptr<QTextDocument> document);
  PositionMap& Positions() { return positions_; }
  QTextCursor CursorAt(Range range) const;

  // Shows the model's selection without scrolling.
  void ShowSelection();
  // Whether a caret without a selection is of use: keys would go to it.
  bool IsInUse() const;

  // The mark and the note at the caret in words; empty where there is neither.
  QString NameAtCaret() const;

  // Changes what is shown, without moving the line that the reader has at the top.
  void KeepPlace(const std::function<void()>& change) { place_.Keep(change); }
  // Scrolls so that a range is seen with some lines around it, clear of the panels that lie over
  // the text; nothing where it is seen so.
  void Reveal(Range range);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  bool viewportEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  QVariant inputMethodQuery(Qt::InputMethodQuery property) const override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  // Where a range is drawn, in the viewport's coordinates.
  QRect PlaceOf(Range range) const;
  // What lies over the text, in the viewport's coordinates.
  std::vector<QRect> Covers() const;

  // All of these run one action of the user; the text takes the focus.
  void ReportSelection();
  void Type(const QString& text);
  void Delete(QTextCursor::MoveOperation operation);
  void DeleteSelection();
  void Undo();
  void Redo();
  void Cut();
  void Paste();
  void SelectEverything();

  // The note anchored at the gap under the mouse; empty where there is none.
  QString NoteUnder(QPoint point) const;
  // Tells the note or the mark under the mouse in words. Returns whether there is one.
  bool ShowMarkName(const QHelpEvent& event);
  void ZoomBy(int steps);
  void ZoomBack();
  void ShowZoom();
  bool ZoomKey(const QKeyEvent& event);
  bool EditKey(QKeyEvent* event);
  bool IsMovement(QKeyEvent* event) const;
  // To the next line as the eye does, also in a table.
  bool MoveByLine(QKeyEvent* event);
  void ShowPreedit(const QInputMethodEvent& event);
  void RestartCaret();
  QRegion AboveSelection(const QRect& clip) const;
  int CaretPosition() const;

  TextSurface& text_;
  Actions& actions_;
  PositionMap positions_;
  TextPictures pictures_;
  ParagraphDecoration decoration_;
  TableRows rows_;
  Zoom zoom_;
  PlaceKeeper place_{*this};
  int wheel_ = 0;  // how far the wheel turned towards the next step of the zoom
  QBasicTimer blink_;
  bool caretOn_ = false;
  int preeditCaret_ = -1;  // inside the preedit text; -1 without one
};

}  // namespace quill
