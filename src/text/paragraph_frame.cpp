#include "text/paragraph_frame.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quill {
namespace {

void AddTab(std::vector<TabStop>& tabs, const ParagraphDetail& detail) {
  const TabStop tab{detail.value, static_cast<TabAlignment>(detail.which & 15U),
                    static_cast<Leader>(detail.which >> 4U)};
  const auto at = std::ranges::lower_bound(tabs, tab.position, {}, &TabStop::position);
  if (at != tabs.end() && at->position == tab.position) {
    *at = tab;
  } else {
    tabs.insert(at, tab);
  }
}

void Change(Border& border, const ParagraphDetail& detail) {
  switch (detail.kind) {
    case ParagraphDetail::kBorderStyle:
      border.style = static_cast<BorderStyle>(detail.value);
      break;
    case ParagraphDetail::kBorderWidth:
      border.width = detail.value;
      break;
    case ParagraphDetail::kBorderGap:
      border.gap = detail.value;
      break;
    default:
      border.colour = static_cast<Colour>(detail.value);
  }
}

void ChangeBorders(std::array<Border, kAllBorders>& borders, const ParagraphDetail& detail) {
  if (detail.which < borders.size()) return Change(borders[detail.which], detail);
  for (int side = kTopBorder; side <= kRightBorder; ++side) Change(borders[side], detail);
}

constexpr Colour kWhite = RGB(255, 255, 255);

// A raster of two colours, as if seen from afar.
class Shading {
 public:
  void Take(const ParagraphDetail& detail) {
    constexpr std::int32_t kAll = 10'000;
    if (detail.kind == ParagraphDetail::kShadingAmount) {
      amount_ = std::clamp(detail.value, 0, kAll) / static_cast<double>(kAll);
    } else if (detail.kind == ParagraphDetail::kShadingBack) {
      hasBack_ = detail.value >= 0;
      back_ = hasBack_ ? static_cast<Colour>(detail.value) : kWhite;
    } else {
      front_ = static_cast<Colour>(detail.value);
    }
  }
  std::optional<Colour> Seen() const {
    if (!hasBack_ && amount_ == 0) return std::nullopt;
    return RGB(Part(0), Part(8), Part(16));
  }

 private:
  unsigned Part(unsigned shift) const {
    const unsigned front = front_ >> shift & 255U;
    const unsigned back = back_ >> shift & 255U;
    return static_cast<unsigned>(std::lround(front * amount_ + back * (1 - amount_)));
  }

  double amount_ = 0;  // of the front colour
  Colour front_ = 0;
  Colour back_ = kWhite;
  bool hasBack_ = false;
};

}  // namespace

bool ParagraphFrame::HasBorders() const {
  return std::ranges::any_of(
      borders, [](const Border& border) { return border.style != BorderStyle::kNone; });
}

ParagraphFrame FrameOf(const std::vector<ParagraphDetail>& details) {
  ParagraphFrame frame;
  Shading shading;
  for (const ParagraphDetail& detail : details) {
    if (detail.kind == ParagraphDetail::kTabStop) {
      AddTab(frame.tabs, detail);
    } else if (detail.kind < ParagraphDetail::kShadingAmount) {
      ChangeBorders(frame.borders, detail);
    } else {
      shading.Take(detail);
    }
  }
  frame.shading = shading.Seen();
  return frame;
}

}  // namespace quill
