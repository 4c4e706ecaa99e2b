// What the colours of a text mean, and the two kinds of temporal operator.
//
// A mark is the colour of its characters, together with their weight and raised position; no other
// record of it exists. So colours are compared exactly, and one that is not listed here is not a
// mark.
#pragma once

#include <optional>
#include <string_view>

#include "text/format.h"

namespace quill {

// Operators of kind A steer how a reader builds up past, present and future; those of kind B order
// events before and after each other.
enum class OperatorKind { kA, kB };

inline constexpr Colour kPlain = RGB(0, 0, 0);
inline constexpr Colour kMarkedA = RGB(0, 0, 255);
// Found by automatic parsing. The walk from mark to mark skips it.
inline constexpr Colour kFoundA = RGB(128, 128, 255);
// Both marked and found.
inline constexpr Colour kMarkedB = RGB(255, 0, 0);
// A hit while the user is asked whether to mark it.
inline constexpr Colour kAskedAbout = RGB(192, 0, 192);
// The line of a tag that is not filled in yet; never in the text.
inline constexpr Colour kNotFilledIn = RGB(255, 0, 255);
// The background of a lemma without a kind; with a kind, it is FoundColour.
inline constexpr Colour kNoLemmaKind = RGB(255, 255, 255);

// Whether characters of that colour are a mark, or were found by a search.
constexpr bool IsMarkColour(Colour colour) {
  return colour == kMarkedA || colour == kFoundA || colour == kMarkedB || colour == kAskedAbout;
}

// How far a tagged term is raised above the baseline.
inline constexpr Twips kRaised = 25;

constexpr Colour MarkColour(OperatorKind kind) {
  return kind == OperatorKind::kA ? kMarkedA : kMarkedB;
}
constexpr Colour FoundColour(OperatorKind kind) {
  return kind == OperatorKind::kA ? kFoundA : kMarkedB;
}

// The category of a dictionary entry.
constexpr std::u32string_view CategoryOf(OperatorKind kind) {
  return kind == OperatorKind::kA ? U"A" : U"B";
}
constexpr std::optional<OperatorKind> KindOfCategory(std::u32string_view category) {
  if (category == U"A") return OperatorKind::kA;
  if (category == U"B") return OperatorKind::kB;
  return std::nullopt;
}

// The operator field of a tag.
constexpr std::optional<OperatorKind> KindOfTag(std::u32string_view operatorField) {
  if (operatorField == U"a_operator") return OperatorKind::kA;
  if (operatorField == U"b_operator") return OperatorKind::kB;
  return std::nullopt;
}

}  // namespace quill
