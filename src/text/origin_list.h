// The origin of each character.
//
// Two arrays: where its bytes begin, and one byte for how many they are and of which kind. Few
// characters have more bytes than that can tell (pictures do): their lengths stand in a list apart.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "text/source.h"

namespace quill {

class OriginList {
 public:
  OriginList() = default;
  // That many typed characters at the source's begin.
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
  // The first character from `from` on whose bytes begin behind an offset; their number where there
  // is none. It is quick where that is near.
  std::size_t FirstBehind(Offset offset, std::size_t from) const;

  // Origins of a source never overlap and are in its order.
  void Append(const Origin& origin);
  // Characters of a byte each.
  void AppendBytes(std::size_t count, Offset begin);
  // The last character reaches to `end`.
  void ExtendLast(Offset end);
  void Replace(std::size_t first, std::size_t last, const OriginList& origins);

  // Room for that many; what stays unused takes no memory.
  void Reserve(std::size_t count);
  // So many are likely to come.
  void Expect(std::size_t count) const;

 private:
  static constexpr unsigned kKindShift = 6;
  static constexpr std::uint32_t kLengthMask = 0x3F;
  static constexpr std::uint32_t kLong = 0x3F;  // this length or a greater one, told by long_

  struct Long {
    Offset begin = 0;
    std::uint32_t length = 0;
  };

  std::uint32_t LongAt(Offset begin) const;
  void Remember(const Long& entry);

  std::vector<Offset> begins_;
  std::vector<std::uint8_t> shapes_;
  std::vector<Long> long_;  // in order; those of deleted characters stay
};

}  // namespace quill
