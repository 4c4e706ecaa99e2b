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
  // Below the least size the desk scrolls; the text still has the width of what is seen of it.
  const int wider = room.width() - StoredSize().width();
  const int higher = std::max(room.height(), LeastSize().height()) - StoredSize().height();
  QRect place = PixelsOf(row.place);
  if (row.name == "RichTextBox1") {
    place.setSize(place.size() + QSize(wider, higher));
    if (guidanceShown) place.setRight(PlaceIn(room, RowOf("User_Dialogue"), true).left() - kGap);
  } else if (row.name == "User_Dialogue") {
    place.translate(wider, 0);
    place.setHeight(place.height() + higher);
  } else if (row.name == "PreFrame" || row.name == "PostFrame") {
    place.translate(0, higher);
  }
  return place;
}

}  // namespace quill
