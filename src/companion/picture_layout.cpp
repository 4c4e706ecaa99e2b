#include "companion/picture_layout.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>

namespace quill::companion {
namespace {

constexpr std::size_t kMostLabelled = 40;
constexpr std::size_t kMostOfLabel = 24;
// The lanes together may grow to this height before marks become smaller.
constexpr double kMostHeight = 440;
constexpr double kGap = 1.5;
constexpr double kLabelGap = 5;
constexpr std::array kRadii = {6.0, 5.0, 4.0, 3.0, 2.2, 1.6};

// The width in type of 11 units, in any sans serif face; too wide rather than too narrow.
double LabelWidth(const PictureTag& tag) {
  constexpr char32_t kFirstWide = 0x1100;
  double width = 0;
  for (const char32_t c : LabelOf(tag)) width += c < kFirstWide ? 6.4 : 11.5;
  return width;
}

// The room that a mark takes in its row.
struct Extent {
  double begin;
  double end;
};

Extent ExtentOf(PlacedMark& mark, const PictureTag& tag, double radius, bool labelled) {
  Extent extent{mark.x - radius - kGap, mark.x + radius + kGap};
  if (!labelled) return extent;
  const double label = kLabelGap + LabelWidth(tag);
  mark.labelIsLeft = extent.end + label > kPlotWidth && extent.begin > label;
  if (mark.labelIsLeft) {
    extent.begin -= label;
  } else {
    extent.end += label + kLabelGap;
  }
  return extent;
}

// Gives each mark the first row with room for it or, if that would exceed `mostRows`, the row that
// is free soonest. Returns the number of rows used.
std::size_t FillRows(std::vector<PlacedMark>& marks, const Picture& picture, double radius,
                     bool labelled, std::size_t mostRows) {
  std::vector<double> ends;
  for (PlacedMark& mark : marks) {
    const Extent extent = ExtentOf(mark, picture.tags[mark.tag], radius, labelled);
    auto row =
        std::find_if(ends.begin(), ends.end(), [&](double end) { return end <= extent.begin; });
    if (row == ends.end()) {
      row =
          ends.size() < mostRows ? ends.insert(row, 0) : std::min_element(ends.begin(), ends.end());
    }
    *row = extent.end;
    mark.row = static_cast<std::size_t>(row - ends.begin());
  }
  return std::max<std::size_t>(ends.size(), 1);
}

void Arrange(PictureLayout& layout, const Picture& picture, double radius, std::size_t mostRows) {
  layout.radius = radius;
  layout.rowHeight = layout.labelled ? 18 : 2 * radius + kGap;
  layout.rows.clear();
  for (auto& lane : layout.lanes) {
    layout.rows.push_back(FillRows(lane, picture, radius, layout.labelled, mostRows));
  }
}

std::size_t RowsInAll(const PictureLayout& layout) {
  return std::accumulate(layout.rows.begin(), layout.rows.end(), std::size_t{0});
}

bool Fits(const PictureLayout& layout) {
  return static_cast<double>(RowsInAll(layout)) * layout.rowHeight <= kMostHeight;
}

// Marks shrink until they fit; only the smallest may cover each other.
void ArrangeInRows(PictureLayout& layout, const Picture& picture) {
  if (layout.labelled) return Arrange(layout, picture, kRadii.front(), picture.tags.size());
  for (const double radius : kRadii) {
    // One row more than fits shows that there is too little room.
    Arrange(layout, picture, radius, static_cast<std::size_t>(kMostHeight / (2 * radius)) + 1);
    if (Fits(layout)) return;
  }
  const double room =
      kMostHeight / static_cast<double>(std::max<std::size_t>(layout.lanes.size(), 1));
  Arrange(layout, picture, kRadii.back(),
          std::max<std::size_t>(3, static_cast<std::size_t>(room / layout.rowHeight)));
}

}  // namespace

double AxisPlace(const Picture& picture, double position) {
  const auto length = static_cast<double>(std::max<Position>(picture.length, 1));
  return kPlotWidth * std::clamp(position / length, 0.0, 1.0);
}

double MiddleOf(const Picture& picture, Range span) {
  return AxisPlace(picture, static_cast<double>(span.begin + span.end) / 2);
}

std::u32string LabelOf(const PictureTag& tag) {
  if (tag.term.size() <= kMostOfLabel) return tag.term;
  return tag.term.substr(0, kMostOfLabel - 1) + U"\u2026";
}

PictureLayout LayOut(const Picture& picture) {
  PictureLayout layout;
  layout.labelled = picture.tags.size() <= kMostLabelled;
  layout.lanes.resize(picture.lanes.size());
  for (std::size_t i = 0; i < picture.tags.size(); ++i) {
    const auto lane = std::find(picture.lanes.begin(), picture.lanes.end(), picture.tags[i].lane);
    layout.lanes[static_cast<std::size_t>(lane - picture.lanes.begin())].push_back(
        {i, MiddleOf(picture, picture.tags[i].span), 0, false});
  }
  for (auto& lane : layout.lanes) {
    std::stable_sort(lane.begin(), lane.end(),
                     [](const PlacedMark& a, const PlacedMark& b) { return a.x < b.x; });
  }
  ArrangeInRows(layout, picture);
  for (auto& lane : layout.lanes) {
    std::stable_sort(lane.begin(), lane.end(),
                     [](const PlacedMark& a, const PlacedMark& b) { return a.row < b.row; });
  }
  return layout;
}

}  // namespace quill::companion
