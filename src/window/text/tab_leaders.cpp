#include "window/text/tab_leaders.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "window/page/page_layout.h"
#include "window/shared/lengths.h"
#include "window/text/lines_in_sight.h"

namespace quill {
namespace {

constexpr double kDot = 1;  // and everything else in pixels of 1/96 inch
constexpr double kDotStep = 4;
constexpr double kHyphen = 4;
constexpr double kHyphenStep = 7;
constexpr double kEndGap = 2;  // between the leader and the text on either side

const QColor kLeader(0x50, 0x50, 0x50);

// Those in a column stand below each other.
void DrawRow(QPainter& painter, QRectF place, double length, double step) {
  for (double x = std::ceil(place.left() / step) * step; x + length <= place.right(); x += step) {
    painter.fillRect(QRectF(x, place.top(), length, place.height()), kLeader);
  }
}

void DrawLeader(QPainter& painter, Leader leader, QRectF line, double ascent, double scale) {
  line.adjust(kEndGap * scale, 0, -kEndGap * scale, 0);
  const double thick = std::max(1.0, std::round(kDot * scale));
  const double foot = std::round(line.top() + ascent);
  QRectF strip(line.left(), foot - thick, line.width(), thick);
  switch (leader) {
    case Leader::kDots:
      return DrawRow(painter, strip, thick, kDotStep * scale);
    case Leader::kHyphens:
      strip.translate(0, -std::round(ascent / 4));
      return DrawRow(painter, strip, kHyphen * scale, kHyphenStep * scale);
    case Leader::kLine:
      return painter.fillRect(strip, kLeader);
    case Leader::kNone:
      return;
  }
}

// Of a tab that begins so far from where the page does, in pixels of 1/96 inch.
Leader LeaderBehind(const QTextBlockFormat& style, const std::vector<TabStop>& stops,
                    double passed) {
  // It goes to where the other lines begin.
  if (style.textIndent() < 0 && passed < style.leftMargin()) return Leader::kNone;
  const auto stop = std::ranges::find_if(
      stops, [&](const TabStop& candidate) { return candidate.position / kTwipsInPixel > passed; });
  return stop != stops.end() ? stop->leader : Leader::kNone;
}

}  // namespace

void DrawTabLeaders(QPainter& painter, const QTextBlock& paragraph,
                    const std::vector<TabStop>& stops) {
  const bool leads =
      std::ranges::any_of(stops, [](const TabStop& stop) { return stop.leader != Leader::kNone; });
  if (!leads) return;
  const Page& page = PageLayout::Of(*paragraph.document()).ThePage();
  const bool rightToLeft = paragraph.textDirection() == Qt::RightToLeft;
  const QTextBlockFormat style = paragraph.blockFormat();
  const QString text = paragraph.text();
  const auto draw = [&](const QTextLine& line, const QRectF& place) {
    const qsizetype end = line.textStart() + line.textLength();
    for (qsizetype at = line.textStart();; ++at) {
      at = text.indexOf(u'\t', at);
      if (at < 0 || at >= end) break;
      const double from = line.cursorToX(static_cast<int>(at));
      const double to = line.cursorToX(static_cast<int>(at) + 1);
      const double passed = (rightToLeft ? page.width - from : from) / page.scale;
      const QRectF tab(page.left + std::min(from, to), place.top(), std::abs(to - from),
                       place.height());
      DrawLeader(painter, LeaderBehind(style, stops, passed), tab, line.ascent(), page.scale);
    }
  };
  ForLinesIn(painter.clipBoundingRect(), *paragraph.layout(), draw);
}

}  // namespace quill
