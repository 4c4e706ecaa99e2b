#include "window/layout.h"

#include <algorithm>

#include "window/shared/appearance.h"

namespace quill {
namespace {

constexpr int kLeastTextHeight = 90;
constexpr int kGap = 4;

QRect PixelsOf(const Place& place) {
  return {Pixels(place.left), Pixels(place.top), Pixels(place.width), Pixels(place.height)};
}

}  // namespace

QSize StoredSize() { return PixelsOf(RowOf("Form1").place).size(); }

QSize LeastSize() {
  const QSize stored = StoredSize();
  return {stored.width(),
          stored.height() - PixelsOf(RowOf("RichTextBox1").place).height() + kLeastTextHeight};
}

QRect PlaceIn(QSize room, const CatalogueRow& row, bool guidanceShown) {
  // Below the least size the desk scrolls, but the text keeps the width of the visible part.
  const int wider = room.width() - StoredSize().width();
  const int higher = std::max(room.height(), LeastSize().height()) - StoredSize().height();
  QRect place = PixelsOf(row.place);
  switch (row.stored.byWindow) {
    case ByWindow::kGrows:
      place.setSize(place.size() + QSize(wider, higher));
      if (guidanceShown) place.setRight(PlaceIn(room, RowOf("User_Dialogue"), true).left() - kGap);
      break;
    case ByWindow::kKeepsRight:
      place.translate(wider, 0);
      place.setHeight(place.height() + higher);
      break;
    case ByWindow::kMovesDown:
      place.translate(0, higher);
      break;
    case ByWindow::kStays:
      break;
  }
  return place;
}

}  // namespace quill
