#include "text/document.h"

#include <limits>
#include <stdexcept>
#include <utility>

#include "text/unicode.h"

namespace quill {
namespace {

constexpr FormatId kUnknown = std::numeric_limits<FormatId>::max();

template <class Wanted>
Position FindFormat(const FormatNumbers& ids, Range range, Wanted wanted) {
  const auto end = static_cast<std::size_t>(range.end);
  for (auto at = static_cast<std::size_t>(range.begin); at < end;) {
    if (wanted(ids[at])) return static_cast<Position>(at);
    at = ids.EndOfStretch(at, end);
  }
  return range.end;
}

// Adds a range after the last one, merging the two if they touch.
void AddTo(std::vector<Range>& ranges, Range range) {
  if (!ranges.empty() && ranges.back().end == range.begin) {
    ranges.back().end = range.end;
  } else {
    ranges.push_back(range);
  }
}

bool EndsCell(const Origin& origin) { return origin.kind == Origin::kCellEnd; }
bool EndsRow(const Origin& origin) { return origin.kind == Origin::kRowEnd; }

}  // namespace

Document::Document() = default;

Document::Document(Source source, std::vector<FontFace> fonts, FormatTable formats,
                   std::u32string text, FormatNumbers formatIds, OriginList origins,
                   FormatId endFormat)
    : source_(std::move(source)),
      fonts_(std::move(fonts)),
      formats_(std::move(formats)),
      text_(std::move(text)),
      formatIds_(std::move(formatIds)),
      origins_(std::move(origins)),
      endFormat_(endFormat) {}

std::u32string_view Document::Text(Range range) const {
  return std::u32string_view(text_).substr(Index(range.begin), Index(range.Length()));
}

std::string_view Document::BytesOf(Position at) const {
  const Origin origin = origins_[Index(at)];
  return std::string_view(source_.bytes).substr(origin.begin, origin.length);
}

Position Document::FindColour(Range range, Colour colour) const {
  return FindFormat(formatIds_, range,
                    [&](FormatId id) { return formats_[id].now.colour == colour; });
}

Position Document::FindOtherColour(Range range, Colour colour) const {
  return FindFormat(formatIds_, range,
                    [&](FormatId id) { return formats_[id].now.colour != colour; });
}

std::vector<Range> Document::Apply(Range range, const AttributeChange& change) {
  return Apply(std::vector<Range>{range}, change);
}

std::vector<Range> Document::Apply(const std::vector<Range>& ranges,
                                   const AttributeChange& change) {
  std::vector<Range> changed;
  changed.reserve(ranges.size());
  // The new number of each format met so far. Formats that result from the change are not met
  // again.
  std::vector<FormatId> renamed(formats_.Size(), kUnknown);
  const auto renaming = [&](FormatId old) {
    if (renamed[old] == kUnknown) {
      Format format = formats_[old];
      format.now = Changed(format.now, change);
      renamed[old] = formats_.Add(format);
    }
    return renamed[old];
  };
  for (const Range& range : ranges) {
    for (std::size_t at = Index(range.begin); at < Index(range.end);) {
      const FormatId old = formatIds_[at];
      const std::size_t stop = formatIds_.EndOfStretch(at, Index(range.end));
      const FormatId now = renaming(old);
      if (now != old) {
        formatIds_.Fill(at, stop, now);
        AddTo(changed, {static_cast<Position>(at), static_cast<Position>(stop)});
      }
      at = stop;
    }
  }
  if (!changed.empty()) ++changes_;
  return changed;
}

Document::Place Document::PlaceFor(Range range) const {
  if (range.Length() > 0) {
    return {origins_[Index(range.begin)].begin, formatIds_[Index(range.begin)]};
  }
  const Position at = range.begin;
  if (Length() == 0) return {source_.bodyEnd, endFormat_};
  // The end of a paragraph or cell is followed by the words that set up the next one: typed text
  // goes after them, before the next character.
  const bool opens =
      at == 0 || text_[Index(at - 1)] == kParagraphEnd || EndsCell(origins_[Index(at - 1)]);
  if (opens && at < Length()) return {origins_[Index(at)].begin, formatIds_[Index(at)]};
  return {origins_[Index(at - 1)].end(), formatIds_[Index(at - 1)]};
}

std::vector<Cell> Document::Type(Range range, std::u32string_view text,
                                 const Attributes& attributes) {
  const Place place = PlaceFor(range);
  Format format = formats_[place.format];
  format.now = attributes;
  const FormatId id = formats_.Add(format);
  std::vector<Cell> cells;
  cells.reserve(text.size());
  for (const char32_t c : text) cells.push_back({c, id, {place.offset}});
  return Exchange(range, cells);
}

std::vector<Cell> Document::Exchange(Range range, const std::vector<Cell>& cells) {
  std::vector<Cell> gone;
  gone.reserve(Index(range.Length()));
  for (std::size_t i = Index(range.begin); i < Index(range.end); ++i) {
    gone.push_back({text_[i], formatIds_[i], origins_[i]});
    const Origin& origin = gone.back().origin;
    if (!origin.IsTyped()) cuts_[origin.begin] = origin.end();
  }
  std::u32string characters;
  FormatNumbers ids;
  OriginList origins;
  for (const Cell& cell : cells) {
    characters += cell.character;
    ids.Append(1, cell.format);
    origins.Append(cell.origin);
    if (!cell.origin.IsTyped()) cuts_.erase(cell.origin.begin);
  }
  text_.replace(Index(range.begin), Index(range.Length()), characters);
  formatIds_.Replace(Index(range.begin), Index(range.end), ids);
  origins_.Replace(Index(range.begin), Index(range.end), origins);
  ++changes_;
  return gone;
}

Position Document::RowBegin(Position rowEnd) const {
  Position at = rowEnd;
  while (at > 0) {
    if (EndsRow(origins_[Index(at - 1)])) break;
    const bool paragraphEnd = text_[Index(at - 1)] == kParagraphEnd;
    if (paragraphEnd && !FormatAt(at - 1).paragraph.inTable) break;
    --at;
  }
  return at;
}

bool Document::CanDelete(Range range) const {
  // Skips whole rows, from the back; a cell end outside one must stay.
  Position at = range.end;
  while (at > range.begin) {
    const Origin origin = origins_[Index(at - 1)];
    if (EndsCell(origin)) return false;
    if (EndsRow(origin)) {
      const Position begin = RowBegin(at - 1);
      if (begin < range.begin) return false;
      at = begin;
    } else {
      --at;
    }
  }
  return true;
}

void Document::Check() const {
  if (formatIds_.size() != text_.size() || origins_.size() != text_.size()) {
    throw std::logic_error("the arrays of the text differ in length");
  }
  Offset reached = 0;
  for (std::size_t i = 0; i < origins_.size(); ++i) {
    const Origin origin = origins_[i];
    if (origin.begin < reached) throw std::logic_error("characters stand in another order");
    reached = origin.end();
    if (!origin.IsTyped() && cuts_.contains(origin.begin)) {
      throw std::logic_error("a character of the text counts as deleted");
    }
  }
  if (reached > source_.bytes.size()) throw std::logic_error("a character beyond the source");
  for (std::size_t i = 0; i < formatIds_.size(); ++i) {
    if (formatIds_[i] >= formats_.Size())
      throw std::logic_error("a format that is not in the table");
  }
}

}  // namespace quill
