#include "companion/blocks.h"

#include <algorithm>
#include <utility>

namespace quill::companion {
namespace {

class BlockBuilder {
 public:
  // Claims must be added in the order in which they begin.
  void Add(const Claim& claim) {
    if (blocks_.empty() || claim.span.begin > blocks_.back().old.end) {
      Finish();
      blocks_.push_back({claim.span, {}, {}});
    }
    Block& block = blocks_.back();
    block.old.end = std::max(block.old.end, claim.span.end);
    claims_.push_back(claim);
  }

  std::vector<Block> Take() {
    Finish();
    return std::move(blocks_);
  }

 private:
  void Finish() {
    if (!blocks_.empty()) Spell(blocks_.back());
    claims_.clear();
  }

  void Spell(Block& block) const {
    const bool whole = std::all_of(claims_.begin(), claims_.end(), [](const Claim& claim) {
      return static_cast<Position>(claim.term.size()) == claim.span.Length();
    });
    if (!whole) return;
    // Claims come in the order in which they begin, so each part is either spelled already or comes
    // next.
    std::u32string spelling;
    for (const Claim& claim : claims_) {
      const auto from = static_cast<std::size_t>(claim.span.begin - block.old.begin);
      const std::size_t common = std::min(spelling.size() - from, claim.term.size());
      if (spelling.compare(from, common, claim.term, 0, common) != 0) return;
      spelling += claim.term.substr(common);
    }
    block.spelling = std::move(spelling);
  }

  std::vector<Block> blocks_;
  std::vector<Claim> claims_;  // of the last block
};

}  // namespace

std::vector<Block> BlocksOf(std::vector<Claim> claims) {
  std::sort(claims.begin(), claims.end(), [](const Claim& a, const Claim& b) {
    return std::pair(a.span.begin, a.span.end) < std::pair(b.span.begin, b.span.end);
  });
  BlockBuilder builder;
  for (const Claim& claim : claims) builder.Add(claim);
  return builder.Take();
}

std::vector<Gap> GapsOf(const std::vector<Block>& blocks, Position length) {
  std::vector<Gap> gaps;
  Position from = 0;
  std::size_t begin = 0;
  for (std::size_t i = 0; i <= blocks.size(); ++i) {
    if (i < blocks.size() && !blocks[i].place) continue;
    const Position to = i < blocks.size() ? *blocks[i].place : length;
    if (begin < i) gaps.push_back({begin, i, {from, to}});
    if (i < blocks.size()) from = to + blocks[i].old.Length();
    begin = i + 1;
  }
  return gaps;
}

const Block* BlockAround(const std::vector<Block>& blocks, Range span) {
  const auto behind =
      std::upper_bound(blocks.begin(), blocks.end(), span.begin,
                       [](Position at, const Block& block) { return at < block.old.begin; });
  if (behind == blocks.begin() || span.end > (behind - 1)->old.end) return nullptr;
  return &*(behind - 1);
}

std::optional<Range> PlaceIn(const std::vector<Block>& blocks, Range span) {
  const Block* const block = BlockAround(blocks, span);
  if (block == nullptr || !block->place) return std::nullopt;
  const Position begin = *block->place + span.begin - block->old.begin;
  return Range{begin, begin + span.Length()};
}

}  // namespace quill::companion
