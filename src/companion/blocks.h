// Blocks: spans of a tag list that overlap or touch, and so move as one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/document.h"

namespace quill::companion {

// A span of a list and the characters that were there.
struct Claim {
  Range span;
  std::u32string_view term;
};

struct Block {
  Range old;
  std::u32string spelling;        // empty if its claims contradict each other
  std::optional<Position> place;  // where it begins now, if known
};

// In the order of their old places; the new ones are not set yet.
std::vector<Block> BlocksOf(std::vector<Claim> claims);

// Blocks next to each other without a place, and the text between the places around them.
struct Gap {
  std::size_t begin;  // indices of blocks
  std::size_t end;
  Range text;
};
std::vector<Gap> GapsOf(const std::vector<Block>& blocks, Position length);

// The block that holds the whole span; nullptr for none. The blocks must be in order.
const Block* BlockAround(const std::vector<Block>& blocks, Range span);

// Where a span has moved with its block; nothing if no block with a place holds it.
std::optional<Range> PlaceIn(const std::vector<Block>& blocks, Range span);

}  // namespace quill::companion
