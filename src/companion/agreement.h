// How far two or more readers of one text agree: on which spans to tag, and on what they say about
// the spans that both tag.
//
// Every figure is computed from whole numbers and divided once, at the end. A figure that is not
// defined (there is nothing to compare, or only one label is used, so that chance and real
// agreement cannot be told apart) is nullopt, never 0 or 1.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "companion/tag_list.h"

namespace quill::companion {

// A value of an enumerated field as a number: equal labels for equal values.
using Label = std::int32_t;
constexpr Label kNotGiven = -1;

struct Referred {
  bool given = false;
  // The place of the other term; empty if the tag names a term without a place. Such references are
  // never the same, since it is unknown which occurrence is meant.
  std::optional<Range> place;
};

// What one reader says about one span.
struct Judgement {
  Range span;
  std::array<Label, kEnumeratedFields.size()> labels;  // in the order of kEnumeratedFields
  Referred reference;
};

// Everything that one reader says, in the order of spans, each span once.
using Reading = std::vector<Judgement>;

// Indices into two readings; each index occurs at most once.
using Matches = std::vector<std::pair<std::size_t, std::size_t>>;

// Pairs equal spans.
Matches MatchEqual(const Reading& a, const Reading& b);

// Pairs spans that share characters: those that share most first, and of these the earlier ones.
Matches MatchOverlapping(const Reading& a, const Reading& b);

// numerator / denominator; nullopt for a denominator of 0.
std::optional<double> Share(std::int64_t numerator, std::int64_t denominator);

struct SpanAgreement {
  std::int64_t spansA = 0;
  std::int64_t spansB = 0;
  std::int64_t matched = 0;

  std::optional<double> Precision() const { return Share(matched, spansB); }
  std::optional<double> Recall() const { return Share(matched, spansA); }
  std::optional<double> F1() const { return Share(2 * matched, spansA + spansB); }
};

struct LabelAgreement {
  std::int64_t compared = 0;  // matched spans to which both readers gave a label
  std::int64_t same = 0;
  std::optional<double> kappa;  // Cohen's

  std::optional<double> Agreement() const { return Share(same, compared); }
};
LabelAgreement CompareLabels(const Reading& a, const Reading& b, const Matches& matches,
                             std::size_t field);

struct ReferenceAgreement {
  std::int64_t compared = 0;
  std::int64_t same = 0;  // both without a reference, or both with the same place

  std::optional<double> Agreement() const { return Share(same, compared); }
};
ReferenceAgreement CompareReferences(const Reading& a, const Reading& b, const Matches& matches);

struct Reliability {
  std::int64_t units = 0;       // spans with two labels or more
  std::optional<double> alpha;  // Krippendorff's, for nominal data with missing values
};
// A span that several readers tag is one unit; only equal spans count as the same.
Reliability MeasureReliability(std::span<const Reading> readings, std::size_t field);

}  // namespace quill::companion
