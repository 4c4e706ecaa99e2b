#include "window/text/paragraph_decoration.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <utility>

#include "rtf/decoration.h"
#include "text/marks.h"
#include "text/unicode.h"
#include "window/page/page_layout.h"
#include "window/page/zoom.h"
#include "window/shared/shown.h"
#include "window/shared/symbols.h"
#include "window/text/paragraph_borders.h"
#include "window/text/run_lines.h"
#include "window/text/tab_leaders.h"

namespace quill {
namespace {

// From where the label begins to where the text does.
constexpr int kLabelRoom = QTextFormat::UserProperty + 2;

// In pixels of 1/96 inch.
constexpr double kLabelGap = 3;    // behind a label
constexpr double kLabelWidth = 7;  // of one of its characters, about

const QColor kPageEnd(0xa0, 0xa0, 0xa0);

void MakeRoomForLabel(QTextBlockFormat& style, int length) {
  // Where the first line hangs out, the label stands in that room.
  const double room =
      std::max(std::max(0.0, -style.textIndent()), kLabelWidth * length + kLabelGap);
  style.setProperty(kLabelRoom, room);
  style.setTextIndent(style.textIndent() + room);
}

// The direction of a row is that of its first cell; of its end the file may say nothing.
QTextBlockFormat RowStyle(const Document& document, Position paragraph) {
  const std::size_t end =
      document.Text().find_first_of(U"\t\n", static_cast<std::size_t>(paragraph));
  QTextBlockFormat style;
  SetInTable(style);
  if (end == std::u32string::npos) return style;
  const bool rightToLeft = document.FormatAt(static_cast<Position>(end)).paragraph.rightToLeft;
  style.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
  return style;
}

bool EndsRow(const Document& document, Position paragraph) {
  const std::size_t end = document.Text().find(kParagraphEnd, static_cast<std::size_t>(paragraph));
  return end != std::u32string::npos && document.Origins()[end].kind == Origin::kRowEnd;
}

}  // namespace

QTextBlockFormat StyleWithRoom(QTextBlockFormat style, const Document& document,
                               Position paragraph) {
  if (paragraph >= document.Length()) return style;
  if (IsInTable(style) || EndsRow(document, paragraph)) return RowStyle(document, paragraph);
  return WithLabelRoom(std::move(style), document, paragraph);
}

QTextBlockFormat WithLabelRoom(QTextBlockFormat style, const Document& document,
                               Position paragraph) {
  if (paragraph >= document.Length()) return style;
  const int label = rtf::LabelLength(document, paragraph);
  if (label > 0) MakeRoomForLabel(style, label);
  return style;
}

ParagraphDecoration::ParagraphDecoration(const Document& document, const PositionMap& positions)
    : document_(document),
      positions_(positions),
      notes_(document, positions),
      frames_(document, positions) {}

void ParagraphDecoration::Clear() {
  labels_.clear();
  notes_.Clear();
  frames_.Clear();
}

void ParagraphDecoration::DrawBehind(QPainter& painter, const QTextBlock& first, int bottom) {
  const QAbstractTextDocumentLayout& layout = *first.document()->documentLayout();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    if (layout.blockBoundingRect(block).top() > bottom) break;
    if (RowOf(block) == nullptr) DrawFrame(painter, block, frames_, InkOf(block));
  }
}

Colour ParagraphDecoration::InkOf(const QTextBlock& block) const {
  const Position at = positions_.ToModel(block.position());
  return at < document_.Length() ? document_.FormatAt(at).written.colour : kPlain;
}

void ParagraphDecoration::Draw(QPainter& painter, const QTextBlock& first, int bottom) {
  const QAbstractTextDocumentLayout& layout = *first.document()->documentLayout();
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    if (layout.blockBoundingRect(block).top() > bottom) break;
    if (block.layout()->lineCount() == 0) continue;
    DrawLabels(painter, block);
    DrawPageEnd(painter, block);
    notes_.Draw(painter, block);
    DrawRunLines(painter, block, document_, positions_);
    if (RowOf(block) == nullptr) DrawTabLeaders(painter, block, frames_.Of(block).tabs);
  }
}

// Through the middle of an empty paragraph, else below the text.
void ParagraphDecoration::DrawPageEnd(QPainter& painter, const QTextBlock& block) const {
  const Position end = positions_.ToModel(block.position() + block.length() - 1);
  if (!rtf::EndsPage(document_, end)) return;
  const Page& page = PageLayout::Of(*block.document()).ThePage();
  const QTextLayout& layout = *block.layout();
  const QRectF lines = layout.boundingRect().translated(layout.position());
  const double y = std::floor(block.length() == 1 ? lines.center().y() : lines.bottom());
  painter.setPen(QPen(kPageEnd, 1, Qt::DashLine));
  painter.drawLine(QPointF(page.left, y), QPointF(page.left + page.width, y));
}

void ParagraphDecoration::DrawLabels(QPainter& painter, const QTextBlock& block) {
  const QTextLayout& lines = *block.layout();
  const InRow* const row = RowOf(block);
  if (row == nullptr) DrawLabel(painter, block, lines.lineAt(0), block.blockFormat());
  int begin = 0;
  for (std::size_t i = 0; row != nullptr && i < row->parts.size(); ++i) {
    DrawLabel(painter, block, lines.lineForTextPosition(begin), row->parts[i].style);
    begin = row->parts[i].end;
  }
}

void ParagraphDecoration::DrawLabel(QPainter& painter, const QTextBlock& block,
                                    const QTextLine& line, const QTextBlockFormat& style) {
  if (!style.hasProperty(kLabelRoom)) return;
  const QTextLayout& layout = *block.layout();
  const QRectF text = line.naturalTextRect().translated(layout.position());
  const QString label = LabelAt(block.position() + line.textStart());
  const double scale = ScaleOf(*block.document());
  QFont font = block.charFormat().font();
  font.setPointSizeF(font.pointSizeF() * scale);
  const QFontMetricsF metrics(font, painter.device());
  const double room = style.doubleProperty(kLabelRoom) * scale;
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

QString ParagraphDecoration::LabelAt(int place) {
  const Position at = positions_.ToModel(place);
  if (at >= document_.Length()) return {};
  const Offset offset = document_.Origins()[static_cast<std::size_t>(at)].begin;
  const auto [entry, isNew] = labels_.try_emplace(offset);
  if (isNew) {
    rtf::Label label = rtf::LabelOf(document_, at);
    for (char32_t& c : label.text) c = ShownSymbol(c, label.font);
    entry->second = ToQt(label.text);
  }
  return entry->second;
}

}  // namespace quill
