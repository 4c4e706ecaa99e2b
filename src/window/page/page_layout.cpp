#include "window/page/page_layout.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <map>
#include <vector>

namespace quill {
namespace {

// Scroll bars count pixels in an int.
constexpr double kMostHeight = 2e9;

// Raised characters stand out of their line.
constexpr double kMostAboveLine = 100;

}  // namespace

PageLayout& PageLayout::For(QTextDocument& shown) {
  auto* const layout = new PageLayout(shown);
  shown.setDocumentLayout(layout);
  return *layout;
}

PageLayout& PageLayout::Of(const QTextDocument& shown) {
  return static_cast<PageLayout&>(*shown.documentLayout());
}

// --- Heights ---------------------------------------------------------------------------------

void PageLayout::MeasureLetters() {
  std::map<int, int> counts;
  int most = 0;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    const int count = counts[block.charFormatIndex()] += block.length();
    if (count <= most) continue;
    most = count;
    letters_ = block.charFormat();
  }
}

void PageLayout::LayOutAnew() {
  page_ = PageIn(document()->textWidth(), *document(), letters_);
  leastHeight_ = 0;
  HeightGuess guess(*document(), page_);
  std::vector<int> heights;
  heights.reserve(static_cast<std::size_t>(document()->blockCount()));
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    block.clearLayout();
    heights.push_back(guess.Of(block));
  }
  heights_.Assign(std::move(heights));
  emit update();
}

void PageLayout::documentChanged(int from, int /*removed*/, int added) {
  if (document()->textWidth() <= 0) return;
  if (heights_.Count() == 0 || PageIn(document()->textWidth(), *document(), letters_) != page_) {
    LayOutAnew();
    return;
  }
  const QTextBlock last = document()->lastBlock();
  const QTextBlock first = std::min(document()->findBlock(from), last);
  // The one behind the change, too: the space above it may be another.
  int end = document()->findBlock(from + added).next().blockNumber() + 1;
  if (end <= 0) end = document()->blockCount();
  const int count = end - first.blockNumber();
  const auto grown = document()->blockCount() - static_cast<std::ptrdiff_t>(heights_.Count());
  QTextBlock block = first;
  for (int i = 0; i < count; ++i, block = block.next()) block.clearLayout();
  if (grown != 0)
    Guess(first, count, static_cast<std::size_t>(std::max<std::ptrdiff_t>(count - grown, 0)));
  emit update();
}

void PageLayout::Guess(const QTextBlock& first, int count, std::size_t before) {
  HeightGuess guess(*document(), page_);
  std::vector<int> heights;
  QTextBlock block = first;
  for (int i = 0; i < count; ++i, block = block.next()) heights.push_back(guess.Of(block));
  heights_.Replace(static_cast<std::size_t>(first.blockNumber()), before, heights);
}

bool PageLayout::EnsureLines(const QTextBlock& block) const {
  QTextLayout& layout = *block.layout();
  int difference = 0;
  if (layout.lineCount() == 0) {
    const int height = SpaceAbove(block, page_) + BreakIntoLines(block, page_);
    const auto index = static_cast<std::size_t>(block.blockNumber());
    // In the middle of a change the numbers are others.
    if (index < heights_.Count()) {
      difference = height - heights_.At(index);
      heights_.Set(index, height);
    }
  }
  layout.setPosition(QPointF(page_.left, TopOfLines(block)));
  if (difference != 0 && corrected_) corrected_(TopOf(block), difference);
  return difference != 0;
}

bool PageLayout::LayOut(double top, double bottom) {
  bool corrected = false;
  for (QTextBlock block = ParagraphAt(top); block.isValid() && TopOf(block) < bottom;
       block = block.next()) {
    corrected = EnsureLines(block) || corrected;
  }
  return corrected;
}

void PageLayout::ReachTo(double bottom) {
  leastHeight_ = bottom;
  AnnounceSize();
}

void PageLayout::AnnounceSize() {
  const QSizeF size = documentSize();
  if (size == announced_) return;
  announced_ = size;
  emit documentSizeChanged(size);
}

// --- Places ----------------------------------------------------------------------------------

QTextBlock PageLayout::ParagraphAt(double height) const {
  const auto inside = static_cast<std::int64_t>(height - page_.margin);
  return document()->findBlockByNumber(static_cast<int>(heights_.IndexAt(inside)));
}

double PageLayout::TopOf(const QTextBlock& paragraph) const {
  const auto number = static_cast<std::size_t>(std::max(paragraph.blockNumber(), 0));
  return page_.margin + static_cast<double>(heights_.Top(std::min(number, heights_.Count())));
}

double PageLayout::TopOfLines(const QTextBlock& block) const {
  return TopOf(block) + SpaceAbove(block, page_);
}

PageLayout::Line PageLayout::LineAt(double height) const {
  const QTextBlock block = ParagraphAt(height);
  EnsureLines(block);
  const double top = TopOfLines(block);
  const QTextLine line = quill::LineAt(*block.layout(), height - top);
  return {block.position() + line.textStart(), top + line.y()};
}

PageLayout::Line PageLayout::LineOf(int position) const {
  const QTextBlock block = document()->findBlock(position);
  if (!block.isValid()) return {};
  EnsureLines(block);
  const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
  if (!line.isValid()) return {block.position(), TopOfLines(block)};
  return {block.position() + line.textStart(), TopOfLines(block) + line.y()};
}

int PageLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const {
  const QTextBlock block = ParagraphAt(point.y());
  EnsureLines(block);
  const QTextLayout& layout = *block.layout();
  const QPointF inside = point - layout.position();
  const QTextLine line = quill::LineAt(layout, inside.y());
  if (accuracy == Qt::FuzzyHit) return block.position() + line.xToCursor(inside.x());
  if (!line.naturalTextRect().contains(inside)) return -1;
  return block.position() + line.xToCursor(inside.x(), QTextLine::CursorOnCharacter);
}

QSizeF PageLayout::documentSize() const {
  const double text = 2 * page_.margin + static_cast<double>(heights_.Total());
  const double height = std::max(text, leastHeight_);
  return {document()->textWidth(), std::min(height, kMostHeight)};
}

QRectF PageLayout::frameBoundingRect(QTextFrame* /*frame*/) const {
  return {QPointF(0, 0), documentSize()};
}

QRectF PageLayout::blockBoundingRect(const QTextBlock& block) const {
  if (!block.isValid()) return {};
  EnsureLines(block);
  return {block.layout()->position(), block.layout()->boundingRect().size()};
}

void PageLayout::resizeInlineObject(QTextInlineObject object, int position,
                                    const QTextFormat& format) {
  QAbstractTextDocumentLayout::resizeInlineObject(object, position, format);
  // The toolkit takes a pixel off, which the line would lack.
  object.setAscent(object.ascent() + 1);
}

// --- Painting --------------------------------------------------------------------------------

void PageLayout::draw(QPainter* painter, const PaintContext& context) {
  const QRectF clip = context.clip.isValid() ? context.clip : frameBoundingRect(nullptr);
  const double bottom = clip.bottom() + kMostAboveLine * page_.scale;
  for (QTextBlock block = ParagraphAt(clip.top()); block.isValid() && TopOf(block) < bottom;
       block = block.next()) {
    EnsureLines(block);
    DrawParagraph(*painter, context, block);
  }
}

void PageLayout::DrawParagraph(QPainter& painter, const PaintContext& context,
                               const QTextBlock& block) {
  const QTextLayout& layout = *block.layout();
  QList<QTextLayout::FormatRange> selections;
  for (const Selection& selection : context.selections) {
    const int begin = selection.cursor.selectionStart() - block.position();
    const int end = selection.cursor.selectionEnd() - block.position();
    if (begin >= block.length() || end <= 0 || begin == end) continue;
    selections.append({begin, end - begin, selection.format});
  }
  // Far down the page the toolkit's numbers, which count pixels in 26 bits, have no room.
  const double top = layout.position().y();
  const QPointF offset(0, -top);
  painter.save();
  painter.translate(0, top);
  painter.setPen(context.palette.color(QPalette::Text));
  layout.draw(&painter, offset, selections, context.clip.translated(0, -top));
  const int caret = context.cursorPosition;
  if (caret < -1 && !layout.preeditAreaText().isEmpty()) {
    layout.drawCursor(&painter, offset, layout.preeditAreaPosition() - (caret + 2));
  } else if (block.contains(caret)) {
    layout.drawCursor(&painter, offset, caret - block.position());
  }
  painter.restore();
}

}  // namespace quill
