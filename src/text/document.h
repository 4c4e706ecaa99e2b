// The text: its characters, their formats, and what the file said besides.
//
// Three arrays run side by side: the characters, the number of each one's format, and the bytes
// that each was read from. Formatting a span is a pass over the formats; an edit moves the tails of
// the arrays. Positions count characters (code points) from 0; a range is half-open. Ranges must
// lie inside the text: clamping is left to the text surface.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/format.h"
#include "text/format_numbers.h"
#include "text/origin_list.h"
#include "text/source.h"

namespace quill {

using Position = std::int64_t;

struct Range {
  Position begin = 0;
  Position end = 0;

  Position Length() const { return end - begin; }
  bool operator==(const Range&) const = default;
};

// A typeface that the file names. Symbol fonts have special characters at U+F020 to U+F0FF.
struct FontFace {
  std::string name;  // UTF-8
  bool symbol = false;

  bool operator==(const FontFace&) const = default;
};

// One character with everything that belongs to it.
struct Cell {
  char32_t character = 0;
  FormatId format = 0;
  Origin origin;

  bool operator==(const Cell&) const = default;
};

class Document {
 public:
  // An empty text without a source; rtf/ makes the documents that can be saved.
  Document();
  Document(Source source, std::vector<FontFace> fonts, FormatTable formats, std::u32string text,
           FormatNumbers formatIds, OriginList origins, FormatId endFormat);

  Position Length() const { return static_cast<Position>(text_.size()); }
  const std::u32string& Text() const { return text_; }
  std::u32string_view Text(Range range) const;
  const FormatNumbers& FormatIds() const { return formatIds_; }
  const OriginList& Origins() const { return origins_; }
  const FormatTable& Formats() const { return formats_; }
  const std::vector<FontFace>& Fonts() const { return fonts_; }
  const Source& GetSource() const { return source_; }
  // The bytes of deleted characters: the end of each stretch, by its start.
  const std::map<Offset, Offset>& Cuts() const { return cuts_; }

  // The bytes of the source from which a character was read; none for a typed one.
  std::string_view BytesOf(Position at) const;
  const Format& FormatAt(Position at) const { return formats_[formatIds_[Index(at)]]; }
  const Attributes& At(Position at) const { return FormatAt(at).now; }

  // The first position in the range whose character has the colour (the second: lacks it); the end
  // of the range if there is none.
  Position FindColour(Range range, Colour colour) const;
  Position FindOtherColour(Range range, Colour colour) const;

  // Sets attributes. Returns the ranges that really changed, in order; no two touch.
  std::vector<Range> Apply(Range range, const AttributeChange& change);
  // The same for many ranges, which must be in order and must not overlap.
  std::vector<Range> Apply(const std::vector<Range>& ranges, const AttributeChange& change);

  // Puts typed text in place of a range (either may be empty). The new characters take the given
  // attributes; the rest of their look is that of the first character replaced, or else of the
  // neighbour that they stand beside. Returns the replaced characters.
  std::vector<Cell> Type(Range range, std::u32string_view text, const Attributes& attributes);

  // Puts back characters that Type returned, in place of a range. Returns what was there.
  std::vector<Cell> Exchange(Range range, const std::vector<Cell>& cells);

  // How often the text or its formats have changed since it was made. Putting back what was there
  // before counts as a change, too.
  std::uint64_t Changes() const { return changes_; }

  // Whether the range may be deleted: the end of a table cell or row goes only with its whole row.
  bool CanDelete(Range range) const;

  // Throws, with a sentence, if an invariant does not hold. For tests.
  void Check() const;

 private:
  static std::size_t Index(Position at) { return static_cast<std::size_t>(at); }
  struct Place {
    Offset offset;
    FormatId format;  // of the character whose look the typed text takes
  };
  Place PlaceFor(Range range) const;
  Position RowBegin(Position rowEnd) const;

  Source source_;
  std::vector<FontFace> fonts_;
  FormatTable formats_;
  std::u32string text_;
  FormatNumbers formatIds_;
  OriginList origins_;
  std::map<Offset, Offset> cuts_;
  FormatId endFormat_ = 0;  // of what follows the last character
  std::uint64_t changes_ = 0;
};

}  // namespace quill
