#include "window/page/table_row.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

namespace quill {
namespace {

constexpr double kCellGap = 7;
constexpr double kLeastColumn = 12;  // before the row is made to fit the page
constexpr double kMostGapShare = 1.0 / 6;

double OnPage(Alignment alignment, double left, double length, double width) {
  if (alignment == Alignment::kCentre) return (width - length) / 2;
  if (alignment == Alignment::kRight) return width - length;
  // What hangs out of the text at its left does so by no more than the gap.
  return std::clamp(left, -kCellGap, std::max(width - length, 0.0));
}

double DistanceTo(const ColumnPlace& column, double x) {
  return std::max({column.left - x, x - column.right, 0.0});
}

}  // namespace

std::vector<ColumnPlace> PlaceColumns(const RowPlan& plan, double width, double scale) {
  std::vector<double> edges{plan.left * scale};
  for (const RowPlan::Column& column : plan.columns) {
    edges.push_back(std::max(column.right, edges.back() / scale + kLeastColumn) * scale);
  }
  const double length = edges.back() - edges.front();
  const double share = std::min(1.0, width / length);
  const double left = OnPage(plan.alignment, edges.front(), length * share, width);
  std::vector<ColumnPlace> places;
  for (std::size_t i = 0; i + 1 < edges.size(); ++i) {
    const double from = std::round(left + (edges[i] - edges.front()) * share);
    const double to = std::round(left + (edges[i + 1] - edges.front()) * share);
    const double gap = std::floor(std::min(kCellGap * scale, (to - from) * kMostGapShare));
    places.push_back({from, to, gap});
    if (plan.rightToLeft) places.back() = {width - to, width - from, gap};
  }
  return places;
}

void CellFlow::Begin(std::size_t column, int above, int below) {
  Column& here = columns_[column];
  if (here.begun) here.bottom += std::max(here.space, above);
  here.begun = true;
  here.space = below;
}

int CellFlow::Take(std::size_t column, int height) {
  return std::exchange(columns_[column].bottom, columns_[column].bottom + height);
}

int CellFlow::Height() const {
  int lowest = 0;
  for (const Column& column : columns_) lowest = std::max(lowest, column.bottom);
  return lowest + padding_;
}

std::size_t LineNear(const std::vector<CellTextLine>& lines,
                     const std::vector<ColumnPlace>& columns, double x, double y) {
  std::size_t nearest = 0;
  double distance = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double here = DistanceTo(columns[lines[i].column], x);
    const bool nearer = here < distance;
    const bool lower = lines[i].column == lines[nearest].column && lines[i].top <= y;
    if (!nearer && !lower) continue;
    nearest = i;
    distance = here;
  }
  return nearest;
}

std::optional<std::size_t> NextInColumn(const std::vector<CellTextLine>& lines, int paragraph,
                                        int line, bool below) {
  const auto found = std::find_if(lines.begin(), lines.end(), [&](const CellTextLine& other) {
    return other.paragraph == paragraph && other.line == line;
  });
  if (found == lines.end()) return std::nullopt;
  const auto sameColumn = [&](const CellTextLine& other) { return other.column == found->column; };
  if (below) {
    const auto next = std::find_if(found + 1, lines.end(), sameColumn);
    if (next == lines.end()) return std::nullopt;
    return static_cast<std::size_t>(next - lines.begin());
  }
  const auto next = std::find_if(std::make_reverse_iterator(found), lines.rend(), sameColumn);
  if (next == lines.rend()) return std::nullopt;
  return static_cast<std::size_t>(lines.rend() - next - 1);
}

}  // namespace quill
