#include "window/text/paragraph_borders.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "window/page/page_layout.h"
#include "window/shared/appearance.h"
#include "window/shared/lengths.h"
#include "window/text/paragraph_frames.h"

namespace quill {
namespace {

constexpr Twips kMostWidth = 120;
constexpr Twips kLeastGap = 20;
constexpr Twips kMostGap = 620;

bool IsThere(const Border& border) { return border.style != BorderStyle::kNone; }

// How many times its line's width a border is wide.
int LinesOf(BorderStyle style) {
  switch (style) {
    case BorderStyle::kNone:
      return 0;
    case BorderStyle::kThick:
      return 2;
    case BorderStyle::kDouble:
      return 3;
    default:
      return 1;
  }
}

double LineOf(const Border& border) {
  return std::clamp<Twips>(border.width, 1, kMostWidth) / kTwipsInPixel;
}

double GapOf(const Border& border) {
  return IsThere(border) ? std::clamp(border.gap, kLeastGap, kMostGap) / kTwipsInPixel : 0;
}

int WidthOf(const Border& border, double scale) {
  const int line = std::max(1, static_cast<int>(std::lround(LineOf(border) * scale)));
  return line * LinesOf(border.style);
}

// One side, in the strip that it takes.
void DrawSide(QPainter& painter, const QRect& strip, const Border& border) {
  const bool lies = strip.width() > strip.height();
  const int width = std::min(strip.width(), strip.height());
  const QColor colour = ToQColor(border.colour);
  if (border.style == BorderStyle::kDouble) {
    const QSize line = lies ? QSize(strip.width(), width / 3) : QSize(width / 3, strip.height());
    painter.fillRect(QRect(strip.topLeft(), line), colour);
    const QPoint across = lies ? QPoint(0, width / 3 * 2) : QPoint(width / 3 * 2, 0);
    painter.fillRect(QRect(strip.topLeft() + across, line), colour);
  } else if (border.style == BorderStyle::kDotted || border.style == BorderStyle::kDashed) {
    const int step = width * (border.style == BorderStyle::kDotted ? 1 : 3);
    const QSize dot = lies ? QSize(step, width) : QSize(width, step);
    const QPoint next = lies ? QPoint(2 * step, 0) : QPoint(0, 2 * step);
    for (QPoint at = strip.topLeft(); strip.contains(at); at += next) {
      painter.fillRect(QRect(at, dot) & strip, colour);
    }
  } else {
    painter.fillRect(strip, colour);
  }
}

// A paragraph's frame on the page.
class Frame {
 public:
  Frame(const QTextBlock& paragraph, const ParagraphFrame& frame, bool joinsAbove, bool joinsBelow)
      : frame_(frame), joinsAbove_(joinsAbove), joinsBelow_(joinsBelow) {
    const PageLayout& layout = PageLayout::Of(*paragraph.document());
    const Page& page = layout.ThePage();
    const QTextBlockFormat style = paragraph.blockFormat();
    scale_ = page.scale;
    const double hangs = std::min(style.textIndent(), 0.0);
    const double left = page.left + (style.leftMargin() + hangs) * scale_;
    const double right = page.left + page.width - style.rightMargin() * scale_;
    const QRectF place = layout.blockBoundingRect(paragraph);
    // What stands in one frame leaves no gap in it.
    const double top = joinsAbove ? layout.TopOf(paragraph) : place.top() - Gap(kTopBorder);
    const double bottom = place.bottom() + (joinsBelow ? 0 : Gap(kBottomBorder));
    inside_ =
        QRectF(QPointF(left - Gap(kLeftBorder), top), QPointF(right + Gap(kRightBorder), bottom))
            .toRect();
  }

  void Fill(QPainter& painter, const QColor& colour) const { painter.fillRect(inside_, colour); }

  void DrawBorders(QPainter& painter) const {
    const QRect around =
        inside_.adjusted(-Width(kLeftBorder), joinsAbove_ ? 0 : -Width(kTopBorder),
                         Width(kRightBorder), joinsBelow_ ? 0 : Width(kBottomBorder));
    Draw(painter, kLeftBorder, around.topLeft(), {Width(kLeftBorder), around.height()});
    Draw(painter, kRightBorder, {inside_.right() + 1, around.top()},
         {Width(kRightBorder), around.height()});
    const BorderSide above = joinsAbove_ ? kBorderBetween : kTopBorder;
    Draw(painter, above, around.topLeft(), {around.width(), Width(above)});
    if (joinsBelow_) return;
    Draw(painter, kBottomBorder, {around.left(), inside_.bottom() + 1},
         {around.width(), Width(kBottomBorder)});
  }

 private:
  double Gap(BorderSide side) const { return GapOf(frame_.borders[side]) * scale_; }
  int Width(BorderSide side) const { return WidthOf(frame_.borders[side], scale_); }
  void Draw(QPainter& painter, BorderSide side, QPoint corner, QSize size) const {
    if (!size.isEmpty()) DrawSide(painter, {corner, size}, frame_.borders[side]);
  }

  const ParagraphFrame& frame_;
  bool joinsAbove_;
  bool joinsBelow_;
  double scale_ = 1;
  QRect inside_;  // of the borders
};

bool IsDark(const QColor& colour) { return qGray(colour.rgb()) < 128; }

}  // namespace

double RoomOf(const Border& border) {
  return GapOf(border) + std::ceil(LineOf(border) * LinesOf(border.style));
}

QColor ReadableShading(const QColor& shading) {
  constexpr int kWhite = 255;
  constexpr int kDarkest = 200;
  const int grey = qGray(shading.rgb());
  if (grey >= kDarkest) return shading;
  const double kept = static_cast<double>(kWhite - kDarkest) / (kWhite - grey);
  const auto paler = [&](int part) { return kWhite - static_cast<int>((kWhite - part) * kept); };
  return {paler(shading.red()), paler(shading.green()), paler(shading.blue())};
}

void DrawFrame(QPainter& painter, const QTextBlock& paragraph, ParagraphFrames& frames,
               Colour ink) {
  const ParagraphFrame& frame = frames.Of(paragraph);
  if (!frame.shading && !frame.HasBorders()) return;
  const QTextBlock below = paragraph.next();
  const Frame drawn(paragraph, frame, frames.JoinsAbove(paragraph),
                    below.isValid() && frames.JoinsAbove(below));
  if (frame.shading) {
    const QColor shading = ToQColor(*frame.shading);
    drawn.Fill(painter, IsDark(ToQColor(ink)) ? ReadableShading(shading) : shading);
  }
  drawn.DrawBorders(painter);
}

}  // namespace quill
