// What all the best alignments of two sequences have in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quill::companion {

// Considers all ways to pair as many equal symbols of two sequences as possible, in the order of
// both. Returns, for every element of the left sequence, its partner in the right one if all these
// pairings agree on it.
//
// Time: the product of the two lengths, divided by 64. Room: their sum.
std::vector<std::optional<std::size_t>> CommonPairs(const std::vector<std::uint32_t>& left,
                                                    const std::vector<std::uint32_t>& right);

}  // namespace quill::companion
