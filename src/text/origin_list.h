// The origin of each character.
//
// Two arrays: where the character's bytes begin, and one byte for their number and kind. Few
// characters (pictures, for instance) have more bytes than that can hold; their lengths are in a
// separate list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/source.h"

namespace quill {

class OriginList {
 public:
  OriginList() = default;
  // That many typed characters at the start of the source.
  explicit OriginList(std::size_t typed) : begins_(typed), shapes_(typed) {}

  std::size_t size() const { return begins_.size(); }
  Origin operator[](std::size_t at) const {
    std::uint32_t length = shapes_[at] & kLengthMask;
    if (length == kLong) [[unlikely]]
      length = LongAt(begins_[at]);
    return {begins_[at], length, static_cast<Origin::Kind>(shapes_[at] >> kKindShift)};
  }
  bool IsTyped(std::size_t at) const { return shapes_[at] == 0; }
  bool HasTyped() const;
  // The first character from `from` on whose bytes begin after an offset; the number of characters
  // if there is none. Quick if the answer is near `from`.
  std::size_t FirstBehind(Offset offset, std::size_t from) const;

  // Origins never overlap and are in the order of the source.
  void Append(const Origin& origin);
  // Appends characters of one byte each.
  void AppendBytes(std::size_t count, Offset begin);
  // Extends the last character to `end`.
  void ExtendLast(Offset end);
  void Replace(std::size_t first, std::size_t last, const OriginList& origins);

  // Reserves room for that many; room that stays unused takes no memory.
  void Reserve(std::size_t count);
  // Announces that about that many will be appended.
  void Expect(std::size_t count) const;

 private:
  static constexpr unsigned kKindShift = 6;
  static constexpr std::uint32_t kLengthMask = 0x3F;
  static constexpr std::uint32_t kLong = 0x3F;  // this length or a greater one: see long_

  struct Long {
    Offset begin = 0;
    std::uint32_t length = 0;
  };

  std::uint32_t LongAt(Offset begin) const;
  void Remember(const Long& entry);

  std::vector<Offset> begins_;
  std::vector<std::uint8_t> shapes_;
  std::vector<Long> long_;  // in order; entries of deleted characters stay
};

}  // namespace quill
