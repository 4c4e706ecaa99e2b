#include "window/text/reveal.h"

#include <algorithm>

namespace quill {
namespace {

// A panel parts a band in two; either may be empty.
std::vector<Band> Without(const std::vector<Band>& bands, const QRect& panel) {
  std::vector<Band> left;
  for (const Band& band : bands) {
    left.push_back({band.top, std::min(band.bottom, panel.top())});
    left.push_back({std::max(band.top, panel.bottom() + 1), band.bottom});
  }
  return left;
}

bool Shows(const Band& band, const QRect& place, int around, bool atTheStart) {
  const int margin = std::min(around, (band.Height() - place.height()) / 3);
  const int above = atTheStart && band.top == 0 ? 0 : margin;
  return place.top() >= band.top + above && place.bottom() < band.bottom - margin;
}

}  // namespace

std::vector<Band> FreeBands(const QRect& place, const std::vector<QRect>& panels, int viewHeight) {
  std::vector<Band> bands{{0, viewHeight}};
  for (const QRect& panel : panels) {
    const bool beside = panel.left() > place.right() || panel.right() < place.left();
    if (!beside) bands = Without(bands, panel);
  }
  bands.erase(std::remove_if(bands.begin(), bands.end(),
                             [&](const Band& band) { return band.Height() < place.height(); }),
              bands.end());
  std::sort(bands.begin(), bands.end(),
            [](const Band& a, const Band& b) { return a.Height() > b.Height(); });
  return bands;
}

std::optional<int> ScrollToSee(const QRect& place, const std::vector<Band>& bands, int around,
                               int scrolled) {
  const auto shows = [&](const Band& band) { return Shows(band, place, around, scrolled == 0); };
  if (std::any_of(bands.begin(), bands.end(), shows)) return std::nullopt;
  for (const Band& band : bands) {
    const int by = place.top() - band.top - (band.Height() - place.height()) / 3;
    const bool aboveTheText = scrolled + by < 0;
    if (!aboveTheText || bands.size() == 1 || band.top == 0) return by;
  }
  return std::nullopt;
}

}  // namespace quill
