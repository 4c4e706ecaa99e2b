// How far the view scrolls to show a place.
#include "window/text/reveal.h"

#include <gtest/gtest.h>

namespace quill::test {
namespace {

TEST(Reveal, ScrollsClearOfPanels) {
  const QRect panel(100, 100, 300, 200);
  const struct {
    const char* what;
    QRect place;
    std::vector<QRect> panels;
    int scrolled;
    std::optional<int> by;
  } kRows[] = {
      {"in sight", {10, 200, 50, 20}, {}, 500, std::nullopt},
      {"below: a third from the top", {10, 900, 50, 20}, {}, 500, 740},
      {"above", {10, -300, 50, 20}, {}, 500, -460},
      {"too near the edge", {10, 30, 50, 20}, {}, 500, -130},
      {"the first line has nothing above it", {10, 0, 50, 20}, {}, 0, std::nullopt},
      {"under a panel: into the higher band", {200, 150, 50, 20}, {panel}, 500, -210},
      {"beside it", {10, 150, 50, 20}, {panel}, 500, std::nullopt},
      {"nothing to scroll to above: the other band", {200, 150, 50, 20}, {panel}, 0, 124},
      {"no room", {0, 0, 50, 600}, {panel}, 500, std::nullopt},
  };
  constexpr int kViewHeight = 500;
  for (const auto& row : kRows) {
    const std::vector<Band> bands = FreeBands(row.place, row.panels, kViewHeight);
    EXPECT_EQ(ScrollToSee(row.place, bands, 60, row.scrolled), row.by) << row.what;
  }
}

}  // namespace
}  // namespace quill::test
