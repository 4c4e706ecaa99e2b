#include "window/page/page_layout.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace quill {
namespace {

// Scroll bars count pixels in an int.
constexpr double kMostHeight = 2e9;

// Raised characters stand out of their line.
constexpr double kMostAboveLine = 100;

bool IsOfRow(const QTextBlock& block, const RowOnPage& row) {
  const InRow* const place = RowOf(block);
  return place != nullptr && place->row.get() == &row;
}

// Rows are laid out as wholes: of a paragraph, the first one of the row before it or around it.
QTextBlock FirstBefore(QTextBlock block) {
  const InRow* const place = RowOf(block.previous());
  while (place != nullptr && IsOfRow(block.previous(), *place->row)) block = block.previous();
  return block;
}

// The number of the paragraph behind another one and its row.
int EndBehind(QTextBlock block, const QTextDocument& shown) {
  if (!block.isValid()) return shown.blockCount();
  const InRow* const place = RowOf(block);
  while (place != nullptr && IsOfRow(block.next(), *place->row)) block = block.next();
  return block.blockNumber() + 1;
}

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
    LeaveRow(block);
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
  const QTextBlock first = FirstBefore(std::min(document()->findBlock(from), last));
  // The one behind the change, too: the space above it may be another.
  const int end = EndBehind(document()->findBlock(from + added).next(), *document());
  const int count = end - first.blockNumber();
  const auto grown = document()->blockCount() - static_cast<std::ptrdiff_t>(heights_.Count());
  ForgetLines(first, count);
  if (grown != 0)
    Guess(first, count, static_cast<std::size_t>(std::max<std::ptrdiff_t>(count - grown, 0)));
  emit update();
}

void PageLayout::ForgetLines(QTextBlock first, int count) {
  for (int i = 0; i < count; ++i, first = first.next()) {
    first.clearLayout();
    LeaveRow(first);
  }
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
    const bool inRow = rows_ && IsInTable(block.blockFormat());
    difference = inRow ? BreakTableRow(block) : BreakParagraph(block);
  }
  layout.setPosition(QPointF(page_.left, TopOfLines(block)));
  if (difference != 0 && corrected_) corrected_(TopOf(block), difference);
  return difference != 0;
}

int PageLayout::BreakParagraph(const QTextBlock& block) const {
  return SetHeight(block, SpaceAbove(block, page_) + BreakIntoLines(block, page_));
}

// The first paragraph of a row has its height, and the others have none.
int PageLayout::BreakTableRow(const QTextBlock& block) const {
  const TableRow row = rows_(block);
  int height = SpaceAbove(row.first, page_) + BreakRow(row, page_);
  int difference = 0;
  QTextBlock paragraph = row.first;
  for (std::size_t i = 0; i < row.paragraphs.size(); ++i, paragraph = paragraph.next()) {
    difference += SetHeight(paragraph, std::exchange(height, 0));
  }
  return difference;
}

int PageLayout::SetHeight(const QTextBlock& block, int height) const {
  const auto index = static_cast<std::size_t>(block.blockNumber());
  // In the middle of a change the numbers are others.
  if (index >= heights_.Count()) return 0;
  const int difference = height - heights_.At(index);
  heights_.Set(index, height);
  return difference;
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
  return FirstOfRow(document()->findBlockByNumber(static_cast<int>(heights_.IndexAt(inside))));
}

double PageLayout::TopOf(const QTextBlock& paragraph) const {
  const auto number = static_cast<std::size_t>(std::max(FirstOfRow(paragraph).blockNumber(), 0));
  return page_.margin + static_cast<double>(heights_.Top(std::min(number, heights_.Count())));
}

double PageLayout::TopOfLines(const QTextBlock& block) const {
  return TopOf(block) + SpaceAbove(FirstOfRow(block), page_);
}

PageLayout::Hit PageLayout::HitAt(const QPointF& point) const {
  QTextBlock block = ParagraphAt(point.y());
  EnsureLines(block);
  block = FirstOfRow(block);
  const QPointF inside = point - QPointF(page_.left, TopOfLines(block));
  const InRow* const place = RowOf(block);
  if (place == nullptr) return {block, quill::LineAt(*block.layout(), inside.y())};
  const RowOnPage& row = *place->row;
  return HitOn(block, row.lines[LineNear(row.lines, row.columns, inside.x(), inside.y())]);
}

PageLayout::Hit PageLayout::HitOn(const QTextBlock& first, const CellTextLine& line) const {
  const QTextBlock block = document()->findBlockByNumber(first.blockNumber() + line.paragraph);
  EnsureLines(block);
  return {block, block.layout()->lineAt(line.line)};
}

PageLayout::Line PageLayout::LineAt(double height) const {
  // In a row of a table, in its first column.
  const Hit hit = HitAt(QPointF(page_.left, height));
  return {hit.block.position() + hit.line.textStart(), TopOfLines(hit.block) + hit.line.y()};
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
  const Hit hit = HitAt(point);
  const QPointF inside = point - hit.block.layout()->position();
  if (accuracy == Qt::FuzzyHit) return PlaceOn(hit, inside.x());
  if (!hit.line.naturalTextRect().contains(inside)) return -1;
  return hit.block.position() + hit.line.xToCursor(inside.x(), QTextLine::CursorOnCharacter);
}

// Behind the end of a cell it would be the beginning of the next one.
int PageLayout::PlaceOn(const Hit& hit, double x) {
  const int place = hit.line.xToCursor(x);
  const InRow* const inRow = RowOf(hit.block);
  int most = hit.line.textStart() + hit.line.textLength();
  if (inRow != nullptr) {
    const CellPart& part = inRow->PartAt(hit.line.textStart());
    if (part.endsCell && most == part.end) --most;
  }
  return hit.block.position() + std::min(place, most);
}

int PageLayout::PlaceBeside(int position, double x, bool below) const {
  const QTextBlock block = document()->findBlock(position);
  EnsureLines(block);
  const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
  if (const auto next = NextLine({block, line}, below)) return PlaceOn(*next, x);
  const QTextBlock first = FirstOfRow(block);
  const InRow* const place = RowOf(block);
  const int step = below ? (place != nullptr ? place->row->paragraphs : 1) : -1;
  const QTextBlock beside = document()->findBlockByNumber(first.blockNumber() + step);
  if (!beside.isValid()) return -1;
  EnsureLines(beside);
  return PlaceOn(HitAt(QPointF(page_.left + x, below ? TopOfLines(beside) : TopOf(first) - 1)), x);
}

std::optional<PageLayout::Hit> PageLayout::NextLine(const Hit& hit, bool below) const {
  if (const InRow* const place = RowOf(hit.block); place != nullptr) {
    const std::vector<CellTextLine>& lines = place->row->lines;
    const auto next = NextInColumn(lines, place->number, hit.line.lineNumber(), below);
    if (!next) return std::nullopt;
    return HitOn(FirstOfRow(hit.block), lines[*next]);
  }
  const QTextLayout& layout = *hit.block.layout();
  const int next = hit.line.lineNumber() + (below ? 1 : -1);
  if (next < 0 || next >= layout.lineCount()) return std::nullopt;
  return Hit{hit.block, layout.lineAt(next)};
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
  const QRectF lines = block.layout()->boundingRect();
  return {block.layout()->position(), QSizeF(lines.right(), lines.bottom())};
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
  QTextBlock block = ParagraphAt(clip.top());
  EnsureLines(block);
  for (block = FirstOfRow(block); block.isValid() && TopOf(block) < bottom; block = block.next()) {
    EnsureLines(block);
    const InRow* const place = RowOf(block);
    if (place != nullptr && place->number == 0) PaintRow(*painter, block, *place->row);
    DrawParagraph(*painter, context, block);
  }
}

void PageLayout::PaintRow(QPainter& painter, const QTextBlock& first, const RowOnPage& row) const {
  const QPointF place(page_.left, TopOfLines(first));
  const QTextBlock behind = document()->findBlockByNumber(first.blockNumber() + row.paragraphs);
  const InRow* const below = RowOf(behind);
  PaintShading(painter, row, place);
  PaintBorders(painter, row, below != nullptr ? below->row.get() : nullptr, place, page_.scale);
}

// What of a paragraph is selected; the ends of cells are no text to be seen.
QList<QTextLayout::FormatRange> PageLayout::Selected(const QTextBlock& block,
                                                     const Selection& selection) {
  const int begin = std::max(selection.cursor.selectionStart() - block.position(), 0);
  const int end = std::min(selection.cursor.selectionEnd() - block.position(), block.length());
  QList<QTextLayout::FormatRange> ranges;
  const InRow* const place = RowOf(block);
  int from = begin;
  for (std::size_t i = 0; place != nullptr && i < place->parts.size(); ++i) {
    const CellPart& part = place->parts[i];
    if (!part.endsCell || part.end <= from || part.end > end) continue;
    ranges.append({from, part.end - 1 - from, selection.format});
    from = part.end;
  }
  if (from < end) ranges.append({from, end - from, selection.format});
  return ranges;
}

void PageLayout::DrawParagraph(QPainter& painter, const PaintContext& context,
                               const QTextBlock& block) {
  const QTextLayout& layout = *block.layout();
  QList<QTextLayout::FormatRange> selections;
  for (const Selection& selection : context.selections) selections += Selected(block, selection);
  // Far down the page the toolkit's numbers, which count pixels in 26 bits, have no room.
  const double top = layout.position().y();
  const QPointF offset(0, -top);
  // The lines of a row are not one below the other, as the toolkit would have them for a clip.
  const QRectF clip = RowOf(block) != nullptr ? QRectF() : context.clip.translated(0, -top);
  painter.save();
  painter.translate(0, top);
  painter.setPen(context.palette.color(QPalette::Text));
  layout.draw(&painter, offset, selections, clip);
  const int caret = context.cursorPosition;
  if (caret < -1 && !layout.preeditAreaText().isEmpty()) {
    layout.drawCursor(&painter, offset, layout.preeditAreaPosition() - (caret + 2));
  } else if (block.contains(caret)) {
    layout.drawCursor(&painter, offset, caret - block.position());
  }
  painter.restore();
}

}  // namespace quill
