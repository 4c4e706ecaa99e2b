#include "window/text/paragraph_decoration.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>

#include "rtf/decoration.h"
#include "window/page/page_layout.h"
#include "window/page/zoom.h"
#include "window/shared/shown.h"
#include "window/shared/symbols.h"

namespace quill {
namespace {

enum Property {
  kInTable = QTextFormat::UserProperty + 1,
  kLabelRoom,  // from where the label begins to where the text does
};

// In pixels of 1/96 inch, which are 15 twips.
constexpr double kTwipsInPixel = 15;
constexpr double kMostEdge = 2000;  // of what a file may ask for
constexpr double kCellGap = 7;      // between a column's edge and its text
constexpr double kRowGap = 6;       // between rows
constexpr double kLabelGap = 3;     // behind a label
constexpr double kLabelWidth = 7;   // of one of its characters, about

const QColor kTableLine(0xc8, 0xc8, 0xc8);

void MakeRoomForLabel(QTextBlockFormat& style, int length) {
  // Where the first line hangs out, the label stands in that room.
  const double room =
      std::max(std::max(0.0, -style.textIndent()), kLabelWidth * length + kLabelGap);
  style.setProperty(kLabelRoom, room);
  style.setTextIndent(style.textIndent() + room);
}

// The number of the cell in which a paragraph begins. In a row too long to be counted it is 0.
std::size_t CellOf(const Document& document, Position paragraph) {
  constexpr Position kMostCounted = 4000;
  std::size_t cell = 0;
  for (Position at = paragraph; at > 0; --at) {
    const Origin origin = document.Origins()[static_cast<std::size_t>(at - 1)];
    if (origin.kind == Origin::kRowEnd || !document.FormatAt(at - 1).paragraph.inTable) break;
    if (origin.kind == Origin::kCellEnd) ++cell;
    if (paragraph - at == kMostCounted) return 0;
  }
  return cell;
}

// Where the text of each column but the first begins.
std::vector<double> ColumnsOf(const Document& document, Position paragraph,
                              const QTextBlockFormat& before) {
  std::vector<double> columns;
  for (const Twips edge : rtf::CellEdges(document, paragraph)) {
    columns.push_back(std::min(edge / kTwipsInPixel, kMostEdge) + kCellGap);
  }
  if (!columns.empty() || !before.boolProperty(kInTable)) return columns;
  for (const QTextOption::Tab& tab : before.tabPositions()) {
    columns.push_back(tab.position + before.leftMargin());
  }
  return columns;
}

void MakeColumns(QTextBlockFormat& style, const std::vector<double>& columns, std::size_t cell) {
  // A second paragraph of a cell stands under the first one.
  const bool isInColumn = cell > 0 && cell <= columns.size();
  style.setLeftMargin(isInColumn ? columns[cell - 1] : kCellGap);
  style.setTextIndent(0);
  // A cell that is centred must not take its whole row out of the columns.
  if (!columns.empty()) style.setAlignment(Qt::AlignLeft);
  style.setTopMargin(std::max(style.topMargin(), kRowGap));
  style.setBottomMargin(std::max(style.bottomMargin(), kRowGap));
  QList<QTextOption::Tab> tabs;
  for (const double column : columns) {
    tabs.append(QTextOption::Tab(column - style.leftMargin(), QTextOption::LeftTab));
  }
  style.setTabPositions(tabs);
}

bool IsInTable(const QTextBlock& block) { return block.blockFormat().boolProperty(kInTable); }

}  // namespace

void SetInTable(QTextBlockFormat& style) { style.setProperty(kInTable, true); }

QTextBlockFormat WithRoom(QTextBlockFormat style, const Document& document, Position paragraph,
                          const QTextBlockFormat& before) {
  if (paragraph >= document.Length()) return style;
  if (style.boolProperty(kInTable)) {
    MakeColumns(style, ColumnsOf(document, paragraph, before), CellOf(document, paragraph));
  }
  const int label = rtf::LabelLength(document, paragraph);
  if (label > 0) MakeRoomForLabel(style, label);
  return style;
}

ParagraphDecoration::ParagraphDecoration(const Document& document, const PositionMap& positions)
    : document_(document), positions_(positions) {}

void ParagraphDecoration::Draw(QPainter& painter, const QTextBlock& first, int bottom) {
  const QAbstractTextDocumentLayout& layout = *first.document()->documentLayout();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    if (layout.blockBoundingRect(block).top() > bottom) break;
    if (block.blockFormat().hasProperty(kLabelRoom)) DrawLabel(painter, block);
    if (!IsInTable(block)) continue;
    DrawRow(painter, block);
    DrawCellEnds(painter, block);
  }
}

void ParagraphDecoration::DrawLabel(QPainter& painter, const QTextBlock& block) {
  const QTextLayout& layout = *block.layout();
  if (layout.lineCount() == 0) return;
  const QTextLine line = layout.lineAt(0);
  const QRectF text = line.naturalTextRect().translated(layout.position());
  const QString label = LabelOf(block);
  const double scale = ScaleOf(*block.document());
  QFont font = block.charFormat().font();
  font.setPointSizeF(font.pointSizeF() * scale);
  const QFontMetricsF metrics(font, painter.device());
  const double room = block.blockFormat().doubleProperty(kLabelRoom) * scale;
  const double width = metrics.horizontalAdvance(label);
  const double most = room - kLabelGap * scale;
  double x = text.left() - std::max(room, width + kLabelGap * scale);
  if (block.blockFormat().layoutDirection() == Qt::RightToLeft) {
    x = text.right() + room - std::min(width, most);
  }
  painter.setFont(font);
  painter.setPen(Qt::black);
  painter.drawText(QPointF(x, text.top() + line.ascent()), label);
}

void ParagraphDecoration::DrawRow(QPainter& painter, const QTextBlock& block) const {
  const Page& page = PageLayout::Of(*block.document()).ThePage();
  const double scale = page.scale;
  const QRectF place = block.document()->documentLayout()->blockBoundingRect(block);
  const auto line = [&](double y) {
    painter.fillRect(QRectF(page.left, y, page.width, 1), kTableLine);
  };
  if (!IsInTable(block.previous())) line(place.top() - kRowGap / 2 * scale);
  if (EndsRow(block) || !IsInTable(block.next())) line(place.bottom() + kRowGap / 2 * scale);
}

// A long cell runs over the next column: the line tells where it ends.
void ParagraphDecoration::DrawCellEnds(QPainter& painter, const QTextBlock& block) const {
  const double scale = ScaleOf(*block.document());
  const QRectF clip = painter.clipBoundingRect();
  const QRectF row = block.document()->documentLayout()->blockBoundingRect(block);
  const QTextLayout& layout = *block.layout();
  const bool rightToLeft = block.blockFormat().layoutDirection() == Qt::RightToLeft;
  const double gap = (rightToLeft ? kCellGap : -kCellGap) * scale;
  const QString text = block.text();
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    QRectF place = line.rect().translated(layout.position());
    if (i == 0) place.setTop(row.top() - kRowGap / 2 * scale);
    if (i == layout.lineCount() - 1) place.setBottom(row.bottom() + kRowGap / 2 * scale);
    if (place.bottom() < clip.top()) continue;
    if (place.top() > clip.bottom()) break;
    const int end = line.textStart() + line.textLength();
    for (int at = line.textStart(); at < end && at + 1 < text.size(); ++at) {
      if (text[at] != u'\t' || !Is(Origin::kCellEnd, block.position() + at)) continue;
      const double x = layout.position().x() + line.cursorToX(at + 1) + gap;
      painter.fillRect(QRectF(x, place.top(), 1, place.height()), kTableLine);
    }
  }
}

bool ParagraphDecoration::EndsRow(const QTextBlock& block) const {
  return Is(Origin::kRowEnd, block.position() + block.length() - 1);
}

bool ParagraphDecoration::Is(Origin::Kind kind, int place) const {
  const Position at = positions_.ToModel(place);
  return at < document_.Length() && document_.Origins()[static_cast<std::size_t>(at)].kind == kind;
}

QString ParagraphDecoration::LabelOf(const QTextBlock& block) {
  const Position at = positions_.ToModel(block.position());
  if (at >= document_.Length()) return {};
  const Offset place = document_.Origins()[static_cast<std::size_t>(at)].begin;
  const auto [entry, isNew] = labels_.try_emplace(place);
  if (isNew) {
    rtf::Label label = rtf::LabelOf(document_, at);
    for (char32_t& c : label.text) c = ShownSymbol(c, label.font);
    entry->second = ToQt(label.text);
  }
  return entry->second;
}

}  // namespace quill
