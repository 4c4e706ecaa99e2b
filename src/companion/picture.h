// A picture of where the tags of a text are and what they refer to, as one SVG file.
//
// The text runs from left to right along an axis. Below it is a lane for each class, with a mark
// for each tag; if marks would cover each other, the lane grows by a row. Above the axis, an arc
// runs from each relative tag to the term that it refers to. Shape and filling repeat what colour
// says, so that nothing is lost in greyscale.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/document.h"

namespace quill::companion {

struct PictureTag {
  enum class Kind { kA, kB, kOther };
  enum class Mode { kAbsolute, kRelative, kOther };

  Range span;           // 0-based, half-open
  std::u32string lane;  // the class; empty if none is given
  Kind kind = Kind::kOther;
  Mode mode = Mode::kOther;
  std::u32string term;
  // What the tag says, piece by piece.
  std::vector<std::u32string> told;
  // The term that the tag refers to.
  std::optional<Range> reference;
};

struct Picture {
  std::u32string name;  // of the text
  Position length = 0;
  std::vector<Position> paragraphEnds;
  std::vector<std::u32string> lanes;  // from top to bottom; every tag's is among them
  std::vector<PictureTag> tags;       // in the order of the list
};

// The whole file, in UTF-8. The same picture gives the same bytes. If 5,000 tags would take more
// than a million bytes, terms and what tags say are shortened.
std::string DrawPicture(const Picture& picture);

}  // namespace quill::companion
