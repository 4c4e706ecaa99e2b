#include "companion/agreement.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace quill::companion {
namespace {

using Count = std::int64_t;

auto Order(const Range& span) { return std::tuple(span.begin, span.end); }

struct Overlap {
  Position shared;
  std::size_t a;
  std::size_t b;
};

// Readings are in order, so the spans of `b` that may reach a span of `a` come after those that end
// before it. Ends need not be in order: the furthest end so far shows what can be skipped.
std::vector<Overlap> FindOverlaps(const Reading& a, const Reading& b) {
  std::vector<Position> furthest(b.size());
  Position end = 0;
  for (std::size_t i = 0; i < b.size(); ++i) furthest[i] = end = std::max(end, b[i].span.end);

  std::vector<Overlap> overlaps;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const Range& span = a[i].span;
    const auto first = std::upper_bound(furthest.begin(), furthest.end(), span.begin);
    for (auto k = static_cast<std::size_t>(first - furthest.begin());
         k < b.size() && b[k].span.begin < span.end; ++k) {
      const Position shared =
          std::min(span.end, b[k].span.end) - std::max(span.begin, b[k].span.begin);
      if (shared > 0) overlaps.push_back({shared, i, k});
    }
  }
  return overlaps;
}

using LabelCounts = std::map<Label, Count>;

Count SumOfSquares(const LabelCounts& counts) {
  Count sum = 0;
  for (const auto& [label, count] : counts) sum += count * count;
  return sum;
}

// With n labels on either side, `same` pairs that agree, and S the sum over all labels of the
// products of the two counts: (same/n - S/n²) / (1 - S/n²).
std::optional<double> Kappa(Count n, Count same, const LabelCounts& ofA, const LabelCounts& ofB) {
  Count expected = 0;
  for (const auto& [label, count] : ofA) {
    const auto other = ofB.find(label);
    if (other != ofB.end()) expected += count * other->second;
  }
  return Share(n * same - expected, n * n - expected);
}

bool SameReference(const Referred& a, const Referred& b) {
  if (!a.given || !b.given) return a.given == b.given;
  return a.place.has_value() && a.place == b.place;
}

struct Vote {
  Range span;
  Label label;
};

std::vector<Vote> VotesBySpan(std::span<const Reading> readings, std::size_t field) {
  std::vector<Vote> votes;
  for (const Reading& reading : readings) {
    for (const Judgement& judgement : reading) {
      const Label label = judgement.labels[field];
      if (label != kNotGiven) votes.push_back({judgement.span, label});
    }
  }
  std::stable_sort(votes.begin(), votes.end(),
                   [](const Vote& a, const Vote& b) { return Order(a.span) < Order(b.span); });
  return votes;
}

}  // namespace

Matches MatchEqual(const Reading& a, const Reading& b) {
  Matches matches;
  for (std::size_t i = 0, k = 0; i < a.size() && k < b.size();) {
    if (a[i].span == b[k].span) {
      matches.emplace_back(i++, k++);
    } else if (Order(a[i].span) < Order(b[k].span)) {
      ++i;
    } else {
      ++k;
    }
  }
  return matches;
}

Matches MatchOverlapping(const Reading& a, const Reading& b) {
  std::vector<Overlap> overlaps = FindOverlaps(a, b);
  // They were found in the order of places, which decides between those that share equally much.
  std::stable_sort(overlaps.begin(), overlaps.end(),
                   [](const Overlap& x, const Overlap& y) { return x.shared > y.shared; });
  std::vector<bool> takenA(a.size());
  std::vector<bool> takenB(b.size());
  Matches matches;
  for (const Overlap& overlap : overlaps) {
    if (takenA[overlap.a] || takenB[overlap.b]) continue;
    takenA[overlap.a] = takenB[overlap.b] = true;
    matches.emplace_back(overlap.a, overlap.b);
  }
  std::sort(matches.begin(), matches.end());
  return matches;
}

std::optional<double> Share(std::int64_t numerator, std::int64_t denominator) {
  if (denominator == 0) return std::nullopt;
  return static_cast<double>(numerator) / static_cast<double>(denominator);
}

LabelAgreement CompareLabels(const Reading& a, const Reading& b, const Matches& matches,
                             std::size_t field) {
  LabelAgreement agreement;
  LabelCounts ofA;
  LabelCounts ofB;
  for (const auto& [i, k] : matches) {
    const Label labelA = a[i].labels[field];
    const Label labelB = b[k].labels[field];
    if (labelA == kNotGiven || labelB == kNotGiven) continue;
    ++agreement.compared;
    if (labelA == labelB) ++agreement.same;
    ++ofA[labelA];
    ++ofB[labelB];
  }
  agreement.kappa = Kappa(agreement.compared, agreement.same, ofA, ofB);
  return agreement;
}

ReferenceAgreement CompareReferences(const Reading& a, const Reading& b, const Matches& matches) {
  ReferenceAgreement agreement{static_cast<Count>(matches.size()), 0};
  for (const auto& [i, k] : matches) {
    if (SameReference(a[i].reference, b[k].reference)) ++agreement.same;
  }
  return agreement;
}

// In a unit with m labels, every ordered pair of readers counts 1/(m-1), so that each label counts
// once. Pairs that differ are summed separately for each m, which keeps the sums whole; of the n
// labels of all units, n² - Σ(count of a label)² ordered pairs differ.
Reliability MeasureReliability(std::span<const Reading> readings, std::size_t field) {
  const std::vector<Vote> votes = VotesBySpan(readings, field);
  Reliability reliability;
  LabelCounts all;
  Count labels = 0;
  std::map<Count, Count> differing;  // by the number of labels in a unit
  for (auto begin = votes.begin(); begin != votes.end();) {
    const auto end = std::find_if(begin, votes.end(),
                                  [&](const Vote& vote) { return vote.span != begin->span; });
    const Count size = end - begin;
    if (size > 1) {
      ++reliability.units;
      labels += size;
      LabelCounts unit;
      for (auto vote = begin; vote != end; ++vote) ++unit[vote->label];
      for (const auto& [label, count] : unit) all[label] += count;
      differing[size] += size * size - SumOfSquares(unit);
    }
    begin = end;
  }
  double observed = 0;
  for (const auto& [size, pairs] : differing) {
    observed += static_cast<double>(pairs) / static_cast<double>(size - 1);
  }
  const Count expected = labels * labels - SumOfSquares(all);
  if (expected > 0) {
    reliability.alpha =
        1 - static_cast<double>(labels - 1) * observed / static_cast<double>(expected);
  }
  return reliability;
}

}  // namespace quill::companion
