// What is known of the formatting of one character.
//
// A document has few distinct formats and many characters: each character holds the number of its
// format in a FormatTable. A format says what the character looks like now, what the file said
// about the same four attributes, and the rest of its look, which only the window reads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "text/paragraph_details.h"

namespace quill {

// r + 256 g + 65536 b.
using Colour = std::uint32_t;
constexpr Colour RGB(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}

// A raised or lowered position above the baseline, in twips (a twentieth of a point). Files count
// it in half-points, ten twips each.
using Twips = std::int32_t;
inline constexpr Twips kTwipsInHalfPoint = 10;

// The four attributes in which marks are written.
struct Attributes {
  Colour colour = 0;
  bool bold = false;
  bool underline = false;
  Twips offset = 0;

  bool operator==(const Attributes&) const = default;
};

// Those of the four attributes that a write sets; the others stay.
struct AttributeChange {
  std::optional<Colour> colour = {};
  std::optional<bool> bold = {};
  std::optional<bool> underline = {};
  std::optional<Twips> offset = {};

  bool operator==(const AttributeChange&) const = default;
};

Attributes Changed(const Attributes& attributes, const AttributeChange& change);
// Adds what a later change sets to an earlier one.
void Merge(AttributeChange& into, const AttributeChange& change);

enum class Alignment : std::uint8_t { kLeft, kCentre, kRight, kJustified };
enum class Capitals : std::uint8_t { kAsWritten, kAll, kSmall };

// How a character looks besides the four attributes. Lengths are in twips.
struct CharacterLook {
  std::uint16_t font = 0;         // index into Document::Fonts()
  std::uint16_t halfPoints = 24;  // font size
  bool italic = false;
  bool struckOut = false;
  bool hidden = false;
  bool rightToLeft = false;  // the run's own direction
  bool deleted = false;      // by a change that the file keeps track of
  bool inserted = false;     // the same
  Capitals capitals = Capitals::kAsWritten;
  std::int8_t script = 0;        // 1 superscript, -1 subscript
  std::int16_t spacing = 0;      // more room behind each character
  std::uint16_t fallback = 1;    // characters that follow \u for readers without Unicode
  std::int32_t background = -1;  // a Colour, or -1 for none

  bool operator==(const CharacterLook&) const = default;
};

// How a paragraph looks; the one of its end character counts for the whole paragraph.
struct ParagraphLook {
  Alignment alignment = Alignment::kLeft;
  bool rightToLeft = false;
  bool inTable = false;
  bool proportional = false;  // the line spacing: 240 is a line of its natural height
  std::int16_t left = 0;
  std::int16_t right = 0;
  std::int16_t first = 0;
  std::int16_t before = 0;
  std::int16_t after = 0;
  std::int16_t lineSpacing = 0;        // 0 natural, above it at least so much, below it exactly
  ParagraphDetails::List details = 0;  // in FormatTable::Details()

  bool operator==(const ParagraphLook&) const = default;
};

struct Format {
  Attributes now;      // as shown
  Attributes written;  // as the file has it at the character's place
  CharacterLook look;
  ParagraphLook paragraph;

  bool operator==(const Format&) const = default;
};

using FormatId = std::uint32_t;

// The distinct formats of a document, numbered from 0 in the order of their first use. Formats
// stay for the life of the table; number 0 is the default format.
class FormatTable {
 public:
  FormatTable();

  FormatId Add(const Format& format);
  const Format& operator[](FormatId id) const { return formats_[id]; }
  std::size_t Size() const { return formats_.size(); }
  ParagraphDetails& Details() { return details_; }
  const ParagraphDetails& Details() const { return details_; }

  static std::size_t HashOf(const Format& format);

 private:
  struct Hash {
    std::size_t operator()(const Format& format) const { return HashOf(format); }
  };

  ParagraphDetails details_;
  std::vector<Format> formats_;
  std::unordered_map<Format, FormatId, Hash> ids_;
};

}  // namespace quill
