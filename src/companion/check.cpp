#include "companion/check.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "companion/circles.h"
#include "companion/one_line.h"
#include "companion/placement.h"
#include "companion/raised.h"
#include "text/unicode.h"

namespace quill::companion {
namespace {

// In one line, like every finding.
std::string Quoted(std::u32string_view text) { return "\"" + InOneLine(text) + "\""; }

// As in tag lines: from 1, both ends included.
std::string PlaceText(Range range) {
  return std::to_string(range.begin + 1) + "-" + std::to_string(range.end);
}

class Checker {
 public:
  Checker(const Text& text, const TagList& list)
      : text_(text),
        list_(list),
        references_(list),
        placement_(Place(text, list)),
        raised_(RaisedStretches(text)) {}

  std::vector<Finding> Run() {
    CheckUntagged();
    CheckDamages();
    for (std::size_t i = 0; i < list_.tags.size(); ++i) {
      CheckPlace(i);
      CheckReference(i);
    }
    CheckCircles();
    for (std::size_t i = 0; i < list_.tags.size(); ++i) CheckRaised(i);
    CheckColours();
    CheckNumbers();
    CheckStacks();
    std::stable_sort(findings_.begin(), findings_.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return std::move(findings_);
  }

 private:
  void Add(std::size_t i, const char* code, std::string message,
           std::optional<Range> found = std::nullopt) {
    const Tag& tag = list_.tags[i];
    AddOf(i, code, tag.span, tag.fields[TagField::kTerm], std::move(message), found);
  }

  void AddOf(std::size_t i, const char* code, Range place, std::u32string_view term,
             std::string message, std::optional<Range> found = std::nullopt) {
    const Tag& tag = list_.tags[i];
    findings_.push_back({tag.line, code, ToUtf8(Given(tag, TagField::kId)), place, ToUtf8(term),
                         found, std::move(message)});
  }

  bool Stands(Range place, std::u32string_view term) const {
    return place.begin <= place.end && place.end <= text_.Length() && text_.At(place) == term;
  }

  std::string WhatStandsAt(Range place) const {
    if (place.begin > place.end || place.end > text_.Length()) return "the text ends before";
    return "there stands " + Quoted(text_.At(place));
  }

  // The place of a tag's term; nothing if it is lost.
  std::optional<Range> PlaceOf(std::size_t i) const {
    if (placement_.tags[i]) return placement_.tags[i];
    const Tag& tag = list_.tags[i];
    if (Stands(tag.span, tag.fields[TagField::kTerm])) return tag.span;
    return std::nullopt;
  }

  void CheckDamages() {
    for (const Damage& damage : list_.damages) {
      findings_.push_back({.line = damage.line, .code = "damaged", .message = damage.what});
    }
  }

  void CheckPlace(std::size_t i) {
    const Tag& tag = list_.tags[i];
    const std::optional<Range> place = PlaceOf(i);
    const std::string term = Quoted(tag.fields[TagField::kTerm]);
    if (!place) {
      Add(i, "lost", term + " is not at " + PlaceText(tag.span) + ": " + WhatStandsAt(tag.span));
    } else if (*place != tag.span) {
      Add(i, "moved", term + " belongs to " + PlaceText(*place), place);
    }
  }

  void CheckReference(std::size_t i) {
    const std::optional<Reference> reference = ReferenceOf(list_.tags[i]);
    if (!reference || !reference->span) return;
    const Range span = *reference->span;
    const std::optional<Range> place = placement_.references[i];
    const std::string term = Quoted(reference->term);
    const bool named = !reference->term.empty();
    if (named && place && *place != span) {
      AddOf(i, "reference-moved", span, reference->term,
            "the reference " + term + " belongs to " + PlaceText(*place), place);
    }
    if (named && !place && !Stands(span, reference->term)) {
      AddOf(i, "reference-lost", span, reference->term,
            "the reference " + term + " is not at " + PlaceText(span) + ": " + WhatStandsAt(span));
    }
    if (!references_.LastAt(span)) {
      AddOf(i, "reference-without-tag", span, reference->term,
            "no line tags " + PlaceText(span) + ", to which it refers");
    }
  }

  void CheckCircles() {
    for (const std::size_t i : ReferenceCircles(list_)) {
      Add(i, "reference-circle", "its references lead back to it");
    }
  }

  void CheckRaised(std::size_t i) {
    const std::optional<Range> place = PlaceOf(i);
    if (!place || place->Length() == 0 || LiesIn(raised_, *place)) return;
    Add(i, "not-raised", Quoted(list_.tags[i].fields[TagField::kTerm]) + " is not wholly raised");
  }

  void CheckColours() {
    for (std::size_t i = 0; i < list_.tags.size(); ++i) {
      const std::optional<Range> place = PlaceOf(i);
      const std::u32string_view kind = Given(list_.tags[i], TagField::kOperator);
      const bool isA = kind == U"a_operator";
      if (!place || place->Length() == 0 || !LiesIn(raised_, *place)) continue;
      if ((!isA && kind != U"b_operator") || references_.LastAt(list_.tags[i].span) != i) continue;
      if (HasColourOf(isA ? Kind::kA : Kind::kB, text_, *place)) continue;
      Add(i, "colour",
          Quoted(list_.tags[i].fields[TagField::kTerm]) + " is not " + (isA ? "blue" : "red") +
              ", the colour of " + ToUtf8(kind));
    }
  }

  void CheckUntagged() {
    const std::vector<Range> covered = CoveredRanges();
    for (const Range& stretch : MarkedStretches(text_)) {
      if (LiesIn(covered, stretch)) continue;
      findings_.push_back({.line = 0,
                           .code = "untagged",
                           .place = stretch,
                           .term = ToUtf8(text_.At(stretch)),
                           .message = Quoted(text_.At(stretch)) + " at " + PlaceText(stretch) +
                                      " is raised, and no line tags it"});
    }
  }

  // What the tags cover, both where they are and where they belong: in order, without overlap.
  std::vector<Range> CoveredRanges() const {
    std::vector<Range> all;
    for (std::size_t i = 0; i < list_.tags.size(); ++i) {
      all.push_back(list_.tags[i].span);
      if (placement_.tags[i]) all.push_back(*placement_.tags[i]);
    }
    std::sort(all.begin(), all.end(),
              [](const Range& a, const Range& b) { return a.begin < b.begin; });
    std::vector<Range> covered;
    for (const Range& range : all) {
      if (!covered.empty() && range.begin <= covered.back().end) {
        covered.back().end = std::max(covered.back().end, range.end);
      } else {
        covered.push_back(range);
      }
    }
    return covered;
  }

  void CheckNumbers() {
    // The first line with each number, and the first one after it that has another span.
    std::map<std::u32string_view, std::vector<std::size_t>> byNumber;
    for (std::size_t i = 0; i < list_.tags.size(); ++i) {
      const std::u32string_view id = Given(list_.tags[i], TagField::kId);
      std::vector<std::size_t>& earlier = byNumber[id];
      const auto other = std::find_if(earlier.begin(), earlier.end(), [&](std::size_t j) {
        return list_.tags[j].span != list_.tags[i].span;
      });
      if (other != earlier.end()) {
        Add(i, "same-number",
            "line " + std::to_string(list_.tags[*other].line) + " has the number " + ToUtf8(id) +
                " too, for another term");
      }
      if (earlier.empty() || (earlier.size() == 1 && other != earlier.end())) earlier.push_back(i);
    }
  }

  void CheckStacks() {
    std::map<std::tuple<Position, Position, std::u32string_view, std::u32string_view>, std::size_t>
        seen;
    for (std::size_t i = 0; i < list_.tags.size(); ++i) {
      const Tag& tag = list_.tags[i];
      const auto [first, isNew] =
          seen.try_emplace({tag.span.begin, tag.span.end, Given(tag, TagField::kUserId),
                            Given(tag, TagField::kSessionId)},
                           i);
      if (isNew) continue;
      Add(i, "stacked",
          "line " + std::to_string(list_.tags[first->second].line) +
              " tags the same term, by the same user in the same session");
    }
  }

  const Text& text_;
  const TagList& list_;
  References references_;
  Placement placement_;
  std::vector<Range> raised_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> Check(const Text& text, const TagList& list) {
  return Checker(text, list).Run();
}

}  // namespace quill::companion
