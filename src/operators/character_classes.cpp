#include "operators/character_classes.h"

#include "text/case_folding.h"

namespace quill {
namespace {

constexpr std::size_t kBlockSize = 256;
constexpr std::size_t kBlocks = 0x110000 / kBlockSize;

}  // namespace

CharacterClasses::CharacterClasses() : blocks_(kBlocks, 0), classes_(kBlockSize, kForeign) {}

CharacterClass CharacterClasses::Add(char32_t folded) {
  if (Of(folded) != kForeign) return Of(folded);
  const CharacterClass number = count_++;
  for (const char32_t character : CaseVariants(folded)) Put(character, number);
  return number;
}

void CharacterClasses::Put(char32_t character, CharacterClass number) {
  std::uint32_t& block = blocks_[character >> kBlockBits];
  if (block == 0) {
    block = static_cast<std::uint32_t>(classes_.size());
    classes_.resize(classes_.size() + kBlockSize, kForeign);
  }
  classes_[block + (character & kInBlock)] = number;
}

}  // namespace quill
