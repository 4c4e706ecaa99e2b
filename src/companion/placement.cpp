#include "companion/placement.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

#include "companion/alignment.h"
#include "companion/blocks.h"
#include "companion/raised.h"
#include "companion/word_search.h"

namespace quill::companion {
namespace {

// Numbers the spellings; those of blocks come first.
class Spellings {
 public:
  std::uint32_t NumberOf(std::u32string_view spelling) {
    return numbers_.try_emplace(spelling, static_cast<std::uint32_t>(numbers_.size()))
        .first->second;
  }

 private:
  std::unordered_map<std::u32string_view, std::uint32_t> numbers_;
};

// Places blocks at the raised stretches that are spelled like them.
void PlaceByMarks(const Text& text, const std::vector<Range>& raised, std::vector<Block>& blocks) {
  Spellings spellings;
  std::vector<std::uint32_t> left;
  std::vector<std::uint32_t> right;
  std::vector<std::size_t> which;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    if (blocks[i].spelling.empty()) continue;
    left.push_back(spellings.NumberOf(blocks[i].spelling));
    which.push_back(i);
  }
  right.reserve(raised.size());
  for (const Range& stretch : raised) right.push_back(spellings.NumberOf(text.At(stretch)));
  const std::vector<std::optional<std::size_t>> partners = CommonPairs(left, right);
  for (std::size_t i = 0; i < partners.size(); ++i) {
    if (partners[i]) blocks[which[i]].place = raised[*partners[i]].begin;
  }
}

// The stretches inside a range, counted from the start of the range.
std::vector<Range> StretchesIn(const std::vector<Range>& stretches, Range range) {
  auto stretch = std::partition_point(stretches.begin(), stretches.end(), [&](const Range& before) {
    return before.begin < range.begin;
  });
  std::vector<Range> inside;
  for (; stretch != stretches.end() && stretch->end <= range.end; ++stretch) {
    inside.push_back({stretch->begin - range.begin, stretch->end - range.begin});
  }
  return inside;
}

// Places the blocks of a gap in which some marks are gone, by the remaining marks and by their
// characters.
void PlaceInGap(const Text& text, const std::vector<Range>& raised, const Gap& gap,
                std::vector<Block>& blocks) {
  std::vector<std::u32string_view> words;
  std::vector<std::size_t> which;
  for (std::size_t i = gap.begin; i < gap.end; ++i) {
    if (blocks[i].spelling.empty()) continue;
    words.emplace_back(blocks[i].spelling);
    which.push_back(i);
  }
  if (words.empty()) return;
  const std::vector<std::optional<Position>> places =
      PlaceWords(text.At(gap.text), words, StretchesIn(raised, gap.text));
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (places[i]) blocks[which[i]].place = gap.text.begin + *places[i];
  }
}

std::vector<Claim> ClaimsOf(const TagList& list) {
  std::vector<Claim> claims;
  for (const Tag& tag : list.tags) claims.push_back({tag.span, tag.fields[TagField::kTerm]});
  return claims;
}

// Whether a reference is to a term that no line of the list tags any more.
bool IsLoose(const std::optional<Reference>& reference, const References& references) {
  return reference && reference->span && !references.LastAt(*reference->span) &&
         reference->span->Length() == static_cast<Position>(reference->term.size());
}

bool Touches(const std::vector<Block>& blocks, Range span) {
  const auto behind = std::partition_point(blocks.begin(), blocks.end(), [&](const Block& block) {
    return block.old.begin <= span.end;
  });
  return behind != blocks.begin() && (behind - 1)->old.end >= span.begin;
}

// The terms of loose references have no tags and no marks: they are searched for between the places
// of the tags around them.
std::vector<Block> LooseBlocks(const Text& text, const TagList& list, const References& references,
                               const std::vector<Block>& blocks) {
  std::vector<Claim> claims;
  for (const Tag& tag : list.tags) {
    const std::optional<Reference> reference = ReferenceOf(tag);
    if (!IsLoose(reference, references) || Touches(blocks, *reference->span)) continue;
    claims.push_back({*reference->span, reference->term});
  }
  std::vector<Block> all = BlocksOf(std::move(claims));
  const auto tagged = [](const Block& block) { return block.place.has_value(); };
  std::copy_if(blocks.begin(), blocks.end(), std::back_inserter(all), tagged);
  std::sort(all.begin(), all.end(),
            [](const Block& a, const Block& b) { return a.old.begin < b.old.begin; });
  for (const Gap& gap : GapsOf(all, text.Length())) PlaceInGap(text, {}, gap, all);
  return all;
}

std::optional<Range> PlaceOfReference(const Text& text, const Tag& tag,
                                      const References& references,
                                      const std::vector<Block>& blocks,
                                      const std::vector<Block>& loose) {
  const std::optional<Reference> reference = ReferenceOf(tag);
  if (!reference || !reference->span) return std::nullopt;
  if (references.LastAt(*reference->span)) return PlaceIn(blocks, *reference->span);
  if (!IsLoose(reference, references)) return std::nullopt;
  // Part of a block, or by itself; a part must still have the same characters.
  const std::optional<Range> place = PlaceIn(loose, *reference->span);
  const bool same = place && text.At(*place) == reference->term;
  return same ? place : std::nullopt;
}

}  // namespace

Placement Place(const Text& text, const TagList& list) {
  const std::vector<Range> raised = RaisedStretches(text);
  std::vector<Block> blocks = BlocksOf(ClaimsOf(list));
  PlaceByMarks(text, raised, blocks);
  for (const Gap& gap : GapsOf(blocks, text.Length())) {
    PlaceInGap(text, raised, gap, blocks);
  }
  const References references(list);
  const std::vector<Block> loose = LooseBlocks(text, list, references, blocks);
  Placement placement;
  for (const Tag& tag : list.tags) {
    placement.tags.push_back(PlaceIn(blocks, tag.span));
    placement.references.push_back(PlaceOfReference(text, tag, references, blocks, loose));
  }
  return placement;
}

}  // namespace quill::companion
