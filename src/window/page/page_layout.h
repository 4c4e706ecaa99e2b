// The layout of the text: its paragraphs one below the other, on a page whose lines are no longer
// than a reader likes. Only paragraphs that somebody looks at are broken into lines; the heights of
// the others are guessed from their length until then. So nothing here takes longer in a longer
// text, but for some steps that are a few nanoseconds a paragraph.
#pragma once

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextLayout>
#include <functional>
#include <optional>

#include "window/page/heights.h"
#include "window/page/paragraph.h"
#include "window/page/row_layout.h"

namespace quill {

// Heights and places count pixels from the page's top left corner.
class PageLayout final : public QAbstractTextDocumentLayout {
 public:
  // Becomes the layout of that document, which owns it. It has to be so before the document is
  // filled and shown.
  static PageLayout& For(QTextDocument& shown);
  // The layout of a document for which there is one.
  static PageLayout& Of(const QTextDocument& shown);

  // Told at once where a paragraph turned out to be higher than guessed, and by how much.
  using Corrected = std::function<void(double top, int difference)>;
  void TellCorrections(Corrected corrected) { corrected_ = std::move(corrected); }

  // Rows of tables come from there; without it they are paragraphs like any other.
  void AskRows(TellRow rows) { rows_ = std::move(rows); }

  const Page& ThePage() const { return page_; }
  // Learns from the text as it is now which typeface the length of its lines goes by.
  void MeasureLetters();
  // After the zoom changed.
  void LayOutAnew();
  // Breaks the paragraphs into lines that reach into a stretch of the page. Returns whether one of
  // them was not as high as guessed.
  bool LayOut(double top, double bottom);
  // Makes the page at least so high, beyond the end of the text, until it is laid out anew.
  void ReachTo(double bottom);
  // Tells the view what is known of the page's size by now.
  void AnnounceSize();

  // Of a row of a table, the first of its paragraphs.
  QTextBlock ParagraphAt(double height) const;
  // With the space above it. Paragraphs of one row have the same.
  double TopOf(const QTextBlock& paragraph) const;
  struct Line {
    int position = 0;  // of its first character
    double top = 0;
  };
  Line LineAt(double height) const;
  // The line that holds a position.
  Line LineOf(int position) const;
  // The place on the next line below a position, or above: in a row of a table that of the same
  // cell, or else of the column that lies under `x`. -1 where the text ends.
  int PlaceBeside(int position, double x, bool below) const;

  void draw(QPainter* painter, const PaintContext& context) override;
  int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
  int pageCount() const override { return 1; }
  QSizeF documentSize() const override;
  QRectF frameBoundingRect(QTextFrame* frame) const override;
  QRectF blockBoundingRect(const QTextBlock& block) const override;

 protected:
  void documentChanged(int from, int removed, int added) override;
  void resizeInlineObject(QTextInlineObject object, int position,
                          const QTextFormat& format) override;

 private:
  explicit PageLayout(QTextDocument& shown) : QAbstractTextDocumentLayout(&shown) {}

  // Returns whether the height was other than guessed.
  bool EnsureLines(const QTextBlock& block) const;
  // Both return by how much the height was other than guessed.
  int BreakParagraph(const QTextBlock& block) const;
  int BreakTableRow(const QTextBlock& block) const;
  int SetHeight(const QTextBlock& block, int height) const;
  // Where its lines begin.
  double TopOfLines(const QTextBlock& block) const;
  void Guess(const QTextBlock& first, int count, std::size_t before);
  void ForgetLines(QTextBlock first, int count);
  // A line and the paragraph that it belongs to.
  struct Hit {
    QTextBlock block;
    QTextLine line;
  };
  // The one nearest to a point.
  Hit HitAt(const QPointF& point) const;
  Hit HitOn(const QTextBlock& firstOfRow, const CellTextLine& line) const;
  static int PlaceOn(const Hit& hit, double x);
  // The next one in the same paragraph, or in the same cell.
  std::optional<Hit> NextLine(const Hit& hit, bool below) const;
  void PaintRow(QPainter& painter, const QTextBlock& first, const RowOnPage& row) const;
  static QList<QTextLayout::FormatRange> Selected(const QTextBlock& block,
                                                  const Selection& selection);
  void DrawParagraph(QPainter& painter, const PaintContext& context, const QTextBlock& block);

  Page page_;
  QTextCharFormat letters_;
  mutable Heights heights_;  // empty until the page has a width
  Corrected corrected_;
  TellRow rows_;
  QSizeF announced_;
  double leastHeight_ = 0;
};

}  // namespace quill
