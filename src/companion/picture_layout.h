// The places of a picture's marks: a lane for each class, with as many rows as keep its marks
// apart.
#pragma once

#include <cstddef>
#include <vector>

#include "companion/picture.h"

namespace quill::companion {

// In units of the drawing, like all lengths here.
constexpr double kPlotWidth = 1000;

struct PlacedMark {
  std::size_t tag = 0;  // an index into the picture's tags
  double x = 0;         // of its middle, from the beginning of the text
  std::size_t row = 0;  // of its lane, from the top
  bool labelIsLeft = false;
};

struct PictureLayout {
  double radius = 0;  // of a mark
  double rowHeight = 0;
  bool labelled = false;                       // few enough marks to show their terms
  std::vector<std::vector<PlacedMark>> lanes;  // in each by row, then from left to right
  std::vector<std::size_t> rows;               // of each lane; at least one
};

// The place of a text position on the axis, from 0 to kPlotWidth.
double AxisPlace(const Picture& picture, double position);
double MiddleOf(const Picture& picture, Range span);

// The term as the mark's label shows it.
std::u32string LabelOf(const PictureTag& tag);

PictureLayout LayOut(const Picture& picture);

}  // namespace quill::companion
