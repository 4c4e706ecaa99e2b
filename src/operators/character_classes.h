// The alphabet of a search: each character of a term has a small number, the same in either case;
// all others share the number 0.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace quill {

using CharacterClass = std::uint32_t;
inline constexpr CharacterClass kForeign = 0;

class CharacterClasses {
 public:
  CharacterClasses();

  // The class of a folded character and its other cases; created if there is none.
  CharacterClass Add(char32_t folded);
  // Any character up to U+10FFFF.
  CharacterClass Of(char32_t character) const {
    return classes_[blocks_[character >> kBlockBits] + (character & kInBlock)];
  }
  // Including kForeign.
  std::size_t Count() const { return count_; }

 private:
  static constexpr unsigned kBlockBits = 8;
  static constexpr char32_t kInBlock = (1U << kBlockBits) - 1;
  void Put(char32_t character, CharacterClass number);

  // Where the block of each character begins in classes_. Blocks without a term's character share
  // one.
  std::vector<std::uint32_t> blocks_;
  std::vector<CharacterClass> classes_;
  CharacterClass count_ = 1;
};

}  // namespace quill
