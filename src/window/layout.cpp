#include "window/layout.h"

#include "window/appearance.h"

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
  const QSize growth = room - StoredSize();
  QRect place = PixelsOf(row.place);
  if (row.name == "RichTextBox1") {
    place.setSize(place.size() + growth);
    if (guidanceShown) place.setRight(PlaceIn(room, RowOf("User_Dialogue"), true).left() - kGap);
  } else if (row.name == "User_Dialogue") {
    place.translate(growth.width(), 0);
    place.setHeight(place.height() + growth.height());
  } else if (row.name == "PreFrame" || row.name == "PostFrame") {
    place.translate(0, growth.height());
  }
  return place;
}

}  // namespace quill
