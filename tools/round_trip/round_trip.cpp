#include "round_trip/round_trip.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "text/marks.h"
#include "text/unicode.h"

namespace quill {
namespace {

// Files hold a raised position in half-points: what was raised stays raised, and by the same
// amount but for rounding.
bool SameInFile(Attributes a, Attributes b) {
  const bool near = std::abs(a.offset - b.offset) <= 5 ||
                    (a.offset != 0 && b.offset != 0 && std::abs(a.offset - b.offset) < 10);
  const bool sameSide = (a.offset > 0) == (b.offset > 0) && (a.offset < 0) == (b.offset < 0);
  a.offset = b.offset = 0;
  return near && sameSide && a == b;
}

// Roughly: punctuation and blanks beyond Latin-1 count as letters, which does no harm here.
bool IsLetter(char32_t c) {
  return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') ||
         (c >= 0xC0 && c != kLineBreak && c != kObject && c != kReplacement);
}

// How the file writes a character is no part of how it looks.
bool SameLook(CharacterLook a, const CharacterLook& b) {
  a.fallback = b.fallback;
  return a == b;
}

// Each document numbers the lists of details for itself.
bool SameParagraph(const Document& first, ParagraphLook a, const Document& second,
                   ParagraphLook b) {
  if (first.Formats().Details()[a.details] != second.Formats().Details()[b.details]) return false;
  a.details = b.details = 0;
  return a == b;
}

std::string Words(const Attributes& attributes) {
  return "colour " + std::to_string(attributes.colour) + (attributes.bold ? ", bold" : "") +
         (attributes.underline ? ", underlined" : "") + ", raised by " +
         std::to_string(attributes.offset);
}

std::string Near(const Document& document, Position at) {
  constexpr Position kAround = 8;
  const auto begin = static_cast<std::size_t>(std::max<Position>(0, at - kAround));
  return "\"" + ToUtf8(document.Text().substr(begin, 2 * kAround)) + "\"";
}

}  // namespace

std::string Difference(const Document& expected, const Document& actual) {
  const std::u32string& text = expected.Text();
  const auto differs =
      std::mismatch(text.begin(), text.end(), actual.Text().begin(), actual.Text().end());
  if (differs.first != text.end() || differs.second != actual.Text().end()) {
    const Position at = differs.first - text.begin();
    return "the text differs at " + std::to_string(at) + ": " + Near(expected, at) + ", now " +
           Near(actual, at);
  }
  for (Position at = 0; at < expected.Length(); ++at) {
    const Format& a = expected.FormatAt(at);
    const Format& b = actual.FormatAt(at);
    if (SameInFile(a.now, b.now) && SameLook(a.look, b.look) &&
        SameParagraph(expected, a.paragraph, actual, b.paragraph)) {
      continue;
    }
    const std::string place = " at " + std::to_string(at) + " in " + Near(expected, at);
    if (!SameInFile(a.now, b.now)) {
      return "attributes differ" + place + ": " + Words(a.now) + "; now " + Words(b.now);
    }
    return (!SameLook(a.look, b.look) ? "the look differs" : "the paragraph differs") + place;
  }
  return "";
}

bool SameButForColours(const Document& original, std::string_view bytes) {
  const Source& source = original.GetSource();
  std::vector<Offset> places = {source.colours.end};
  if (source.colours.expandedEnd != 0) places.push_back(source.colours.expandedEnd);
  std::sort(places.begin(), places.end());
  std::string_view rest = source.bytes;
  Offset passed = 0;
  for (const Offset place : places) {
    const std::string_view piece = rest.substr(0, place - passed);
    const std::size_t at = passed == 0 ? 0 : bytes.find(piece);
    if (at == std::string_view::npos || bytes.substr(at, piece.size()) != piece) return false;
    bytes.remove_prefix(at + piece.size());
    rest.remove_prefix(piece.size());
    passed = place;
  }
  return bytes.ends_with(rest);
}

std::vector<Attributes> AttributesOf(const Document& document, Range range) {
  std::vector<Attributes> attributes;
  attributes.reserve(static_cast<std::size_t>(range.Length()));
  for (Position at = range.begin; at < range.end; ++at) attributes.push_back(document.At(at));
  return attributes;
}

void Restore(Document& document, Range range, const std::vector<Attributes>& attributes) {
  Position at = range.begin;
  for (auto first = attributes.begin(); first != attributes.end();) {
    const auto last =
        std::find_if(first, attributes.end(), [&](const Attributes& a) { return a != *first; });
    const Position end = at + (last - first);
    document.Apply({at, end}, {first->colour, first->bold, first->underline, first->offset});
    at = end;
    first = last;
  }
}

void Mark(Document& document, Range range, Position seed) {
  static const AttributeChange kLooks[] = {
      {.colour = kMarkedA},
      {.colour = kMarkedB, .bold = true},
      {.colour = kMarkedA, .bold = false, .offset = kRaised},
      {.underline = true},
      {.colour = kPlain, .bold = false},
      {.colour = kAskedAbout, .bold = true, .underline = true},
      {.colour = kPlain, .bold = false, .underline = false, .offset = 0}};
  document.Apply(range, kLooks[static_cast<std::size_t>(seed) % std::size(kLooks)]);
}

std::vector<Range> MarkWords(Document& document, std::size_t every) {
  static const AttributeChange kLooks[] = {{.colour = kMarkedA, .bold = true},
                                           {.colour = kMarkedB},
                                           {.underline = true},
                                           {.colour = kMarkedA, .bold = false, .offset = kRaised},
                                           {.colour = kFoundA, .bold = true}};
  std::vector<Range> marks;
  const std::u32string& text = document.Text();
  std::size_t words = 0;
  auto word = text.begin();
  while ((word = std::find_if(word, text.end(), IsLetter)) != text.end()) {
    const auto end = std::find_if_not(word, text.end(), IsLetter);
    const Range range{word - text.begin(), end - text.begin()};
    if (words++ % every == 0 &&
        !document.Apply(range, kLooks[marks.size() % std::size(kLooks)]).empty()) {
      marks.push_back(range);
    }
    word = end;
  }
  return marks;
}

}  // namespace quill
