#include "window/text/run_lines.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "window/page/page_layout.h"
#include "window/text/lines_in_sight.h"

namespace quill {
namespace {

// In pixels of 1/96 inch.
constexpr double kDot = 1;
constexpr double kDotStep = 3;
constexpr double kDotsBelow = 3;  // the letters' feet, and an underline
constexpr double kBar = 2;
constexpr double kBarGap = 4;  // between it and the page

const QColor kGrey(0x70, 0x70, 0x70);

class RunLines {
 public:
  RunLines(QPainter& painter, const QTextBlock& paragraph, const Document& document,
           const PositionMap& positions)
      : painter_(painter),
        paragraph_(paragraph),
        document_(document),
        positions_(positions),
        page_(PageLayout::Of(*paragraph.document()).ThePage()) {}

  void Draw(const QTextLine& line, const QRectF& place) {
    const int begin = paragraph_.position() + line.textStart();
    const int end = begin + line.textLength();
    const Position last = std::min(positions_.ToModel(end), document_.Length());
    bool inserted = false;
    for (Position at = positions_.ToModel(begin); at < last;) {
      const Position next = static_cast<Position>(document_.FormatIds().EndOfStretch(
          static_cast<std::size_t>(at), static_cast<std::size_t>(last)));
      const CharacterLook& look = document_.FormatAt(at).look;
      if (look.hidden) DrawDots(line, place, {at, next});
      inserted = inserted || look.inserted;
      at = next;
    }
    if (inserted) DrawBar(place);
  }

 private:
  double Thick(double pixels) const { return std::max(1.0, std::round(pixels * page_.scale)); }
  double PlaceOf(const QTextLine& line, Position at) const {
    const double x = line.cursorToX(positions_.ToWidget(at) - paragraph_.position());
    return paragraph_.layout()->position().x() + x;
  }

  void DrawDots(const QTextLine& line, const QRectF& place, Range hidden) {
    const double from = PlaceOf(line, hidden.begin);
    const double to = PlaceOf(line, hidden.end);
    const double y = std::round(place.top() + line.ascent() + kDotsBelow * page_.scale);
    const double size = Thick(kDot);
    const double first = std::round(std::min(from, to));
    const double last = std::max(from, to) - size;
    const double step = Thick(kDotStep);
    for (int dot = 0; first + dot * step <= last; ++dot) {
      painter_.fillRect(QRectF(first + dot * step, y, size, size), kGrey);
    }
  }

  void DrawBar(const QRectF& place) {
    const double width = Thick(kBar);
    const double left = std::round(page_.left - kBarGap * page_.scale - width);
    painter_.fillRect(QRectF(left, place.top(), width, place.height()), kGrey);
  }

  QPainter& painter_;
  const QTextBlock& paragraph_;
  const Document& document_;
  const PositionMap& positions_;
  const Page& page_;
};

}  // namespace

void DrawRunLines(QPainter& painter, const QTextBlock& paragraph, const Document& document,
                  const PositionMap& positions) {
  RunLines lines(painter, paragraph, document, positions);
  ForLinesIn(painter.clipBoundingRect(), *paragraph.layout(),
             [&](const QTextLine& line, const QRectF& place) { lines.Draw(line, place); });
}

}  // namespace quill
