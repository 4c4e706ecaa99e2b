// What a paragraph has besides its alignment and its indents: tab stops, borders, shading.
//
// Files say these things word by word, in front of every paragraph anew. A list of them is told by
// a number, and lists that begin alike share their beginnings: a word costs one look-up, whatever
// stands in front of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace quill {

enum class TabAlignment : std::uint8_t { kLeft, kCentre, kRight, kDecimal };
enum class Leader : std::uint8_t { kNone, kDots, kHyphens, kLine };
enum class BorderStyle : std::uint8_t { kNone, kSingle, kThick, kDouble, kDotted, kDashed };
enum BorderSide : std::uint8_t {
  kTopBorder,
  kBottomBorder,
  kLeftBorder,
  kRightBorder,
  kBorderBetween,
  kAllBorders  // but for the one between
};

// One word of a file.
struct ParagraphDetail {
  enum Kind : std::uint8_t {
    kTabStop,  // value: twips from the left margin; which: TabKind()
    // which: a BorderSide. Widths and gaps are in twips.
    kBorderStyle,
    kBorderWidth,
    kBorderGap,
    kBorderColour,
    kShadingAmount,  // value: of the front colour, in hundredths of a percent
    kShadingFront,
    kShadingBack,  // value: -1 for none
  };
  static constexpr std::uint8_t TabKind(TabAlignment alignment, Leader leader) {
    return static_cast<std::uint8_t>(static_cast<unsigned>(alignment) |
                                     static_cast<unsigned>(leader) << 4U);
  }

  Kind kind = kTabStop;
  std::uint8_t which = 0;
  std::int32_t value = 0;

  bool operator==(const ParagraphDetail&) const = default;
};

// The lists of details in a text. Number 0 is the empty one.
class ParagraphDetails {
 public:
  using List = std::uint16_t;

  // The list with one more detail behind the others. Of those that a hostile file asks for, it is
  // the list itself.
  List Add(List list, const ParagraphDetail& detail);
  std::vector<ParagraphDetail> operator[](List list) const;

 private:
  struct Node {
    List before = 0;
    std::uint8_t length = 0;
    ParagraphDetail last;
  };

  std::vector<Node> nodes_ = {Node{}};
  std::unordered_map<std::uint64_t, List> known_;
};

}  // namespace quill
