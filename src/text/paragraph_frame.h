// Where a paragraph's tabs go, and what stands around it: what its details come to.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "text/format.h"
#include "text/paragraph_details.h"

namespace quill {

struct TabStop {
  Twips position = 0;  // from the left margin
  TabAlignment alignment = TabAlignment::kLeft;
  Leader leader = Leader::kNone;

  bool operator==(const TabStop&) const = default;
};

struct Border {
  BorderStyle style = BorderStyle::kNone;
  Twips width = 15;  // of one line
  Twips gap = 0;     // between it and the text
  Colour colour = 0;

  bool operator==(const Border&) const = default;
};

struct ParagraphFrame {
  std::vector<TabStop> tabs = {};                // by their positions, each of which is there once
  std::array<Border, kAllBorders> borders = {};  // by their BorderSide
  std::optional<Colour> shading = {};

  bool HasBorders() const;
  bool operator==(const ParagraphFrame&) const = default;
};

ParagraphFrame FrameOf(const std::vector<ParagraphDetail>& details);

}  // namespace quill
