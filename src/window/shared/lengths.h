// The lengths of files, in twips, and those of the page, in pixels of 1/96 inch before any zoom.
#pragma once

namespace quill {

inline constexpr double kTwipsInPixel = 15;

}  // namespace quill
