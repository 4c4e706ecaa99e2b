#include "support/rich_text.h"

#include <gtest/gtest.h>

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

}  // namespace

std::vector<Attributes> AttributesOf(const Document& document, Range range) {
  std::vector<Attributes> attributes;
  for (Position at = range.begin; at < range.end; ++at) attributes.push_back(document.At(at));
  return attributes;
}

void Restore(Document& document, Range range, const std::vector<Attributes>& attributes) {
  Position at = range.begin;
  for (const Attributes& a : attributes) {
    document.Apply({at, at + 1}, {a.colour, a.bold, a.underline, a.offset});
    ++at;
  }
}

void Mark(Document& document, Range range, Position seed) {
  static const AttributeChange kLooks[] = {
      {.colour = RGB(0, 0, 255)},
      {.colour = RGB(255, 0, 0), .bold = true},
      {.colour = RGB(0, 0, 255), .bold = false, .offset = 25},
      {.underline = true},
      {.colour = RGB(0, 0, 0), .bold = false},
      {.colour = RGB(192, 0, 192), .bold = true, .underline = true},
      {.colour = RGB(0, 0, 0), .bold = false, .underline = false, .offset = 0}};
  document.Apply(range, kLooks[static_cast<std::size_t>(seed) % std::size(kLooks)]);
}

void ExpectSameText(const Document& expected, const Document& actual) {
  ASSERT_EQ(ToUtf8(expected.Text()), ToUtf8(actual.Text()));
  for (Position at = 0; at < expected.Length(); ++at) {
    ASSERT_TRUE(SameInFile(expected.At(at), actual.At(at)))
        << "attributes differ at " << at << " in " << Dump(expected) << "\nand " << Dump(actual);
  }
}

std::string Dump(const Document& document) {
  std::string dump;
  Attributes last;
  for (Position at = 0; at < document.Length(); ++at) {
    const Attributes& now = document.At(at);
    if (now != last) {
      std::string words;
      if (now.colour != 0) words += " c" + std::to_string(now.colour);
      if (now.bold) words += " b";
      if (now.underline) words += " u";
      if (now.offset != 0) words += " o" + std::to_string(now.offset);
      dump += words.empty() ? "</>" : "<" + words.substr(1) + ">";
      last = now;
    }
    dump += ToUtf8(document.Text().substr(static_cast<std::size_t>(at), 1));
  }
  return dump;
}

}  // namespace quill
