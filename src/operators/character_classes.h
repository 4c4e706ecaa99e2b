// The alphabet of a search: every character that occurs in a term, in whatever case, has a small
// number; all others share the number 0.
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

  // The class of a folded character and of its other cases; makes one where there is none.
  CharacterClass Add(char32_t folded);
  // Any character up to U+10FFFF.
  CharacterClass Of(char32_t character) const {
    return classes_[blocks_[character >> kBlockBits] + (character & kInBlock)];
  }
  // With kForeign.
  std::size_t Count() const { return count_; }

 private:
  static constexpr unsigned kBlockBits = 8;
  static constexpr char32_t kInBlock = (1U << kBlockBits) - 1;
  void Put(char32_t character, CharacterClass number);

  // Where the block of a character begins in classes_; blocks without a term's character are one.
  std::vector<std::uint32_t> blocks_;
  std::vector<CharacterClass> classes_;
  CharacterClass count_ = 1;
};

}  // namespace quill
