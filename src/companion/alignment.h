// What all the best ways to lay one sequence along another have in common.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quill::companion {

// Pairs equal symbols of two sequences, in the order of both, as many as can be. Returns for every
// element of the left one its partner in the right one, where every such pairing gives it the same.
//
// Takes a 64th of the product of the two lengths as its time, and their sum as its room.
std::vector<std::optional<std::size_t>> CommonPairs(const std::vector<std::uint32_t>& left,
                                                    const std::vector<std::uint32_t>& right);

}  // namespace quill::companion
