#include "window/page/line_spacing.h"

#include <QTextBlockFormat>
#include <algorithm>
#include <cmath>

namespace quill {
namespace {

int WholePixels(double length) { return static_cast<int>(std::lround(length)); }

}  // namespace

LineSpacing::LineSpacing(const QTextBlockFormat& style, double scale) {
  const double height = style.lineHeight();
  switch (style.lineHeightType()) {
    case QTextBlockFormat::ProportionalHeight:
      times_ = height / 100;
      break;
    case QTextBlockFormat::MinimumHeight:
      least_ = WholePixels(height * scale);
      break;
    case QTextBlockFormat::FixedHeight:
      exact_ = std::max(WholePixels(height * scale), 1);
      break;
    default:
      break;
  }
}

int LineSpacing::Advance(double natural) const {
  if (IsExact()) return exact_;
  return std::max(WholePixels(std::ceil(natural) * times_), least_);
}

int LineSpacing::Above(double natural, double ascent) const {
  // Where a line is exactly so high, a fifth of it lies below the letters' feet.
  if (IsExact()) return WholePixels(exact_ * 0.8 - ascent);
  const int more = Advance(natural) - WholePixels(std::ceil(natural));
  return least_ > 0 ? more : std::min(more, 0);
}

}  // namespace quill
