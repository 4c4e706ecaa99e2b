// Where to scroll so that the reader sees a place of the text, clear of the panels over it.
//
// Plain geometry: pixels of the viewport, whose top edge is 0. A band is a stretch of its height.
#pragma once

#include <QRect>
#include <optional>
#include <vector>

namespace quill {

struct Band {
  int top = 0;
  int bottom = 0;  // not part of it
  int Height() const { return bottom - top; }
  bool operator==(const Band&) const = default;
};

// The bands that no panel covers at the width of the place and that have room for it, the highest
// first.
std::vector<Band> FreeBands(const QRect& place, const std::vector<QRect>& panels, int viewHeight);

// How far to scroll down, or up if it is negative. Nothing if the place is seen already, with
// `around` pixels above and below it or as many as the band has room for, or if there is no band.
// `scrolled` is how far down the viewport is: it cannot go above the text.
std::optional<int> ScrollToSee(const QRect& place, const std::vector<Band>& bands, int around,
                               int scrolled);

}  // namespace quill
