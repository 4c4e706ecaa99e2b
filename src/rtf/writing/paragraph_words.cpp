#include "rtf/writing/paragraph_words.h"

#include "rtf/syntax/words.h"

namespace quill::rtf {
namespace {

// By the numbers of their enumerations.
constexpr std::string_view kAlignments[] = {"", "\\qc", "\\qr", "\\qj"};
constexpr std::string_view kTabs[] = {"", "\\tqc", "\\tqr", "\\tqdec"};
constexpr std::string_view kLeaders[] = {"", "\\tldot", "\\tlhyph", "\\tlul"};
constexpr std::string_view kBorders[] = {"\\brdrt", "\\brdrb",   "\\brdrl",
                                         "\\brdrr", "\\brdrbtw", "\\box"};
constexpr std::string_view kBorderStyles[] = {"\\brdrnone", "\\brdrs",   "\\brdrth",
                                              "\\brdrdb",   "\\brdrdot", "\\brdrdash"};

std::string WordOf(const ParagraphDetail& detail, ColourNumbers& colours) {
  const auto colour = static_cast<Colour>(detail.value);
  switch (detail.kind) {
    case ParagraphDetail::kTabStop:
      return std::string(kTabs[detail.which & 15U]) + std::string(kLeaders[detail.which >> 4U]) +
             NumberedWord("tx", detail.value);
    case ParagraphDetail::kBorderStyle:
      return std::string(kBorders[detail.which]) + std::string(kBorderStyles[detail.value]);
    case ParagraphDetail::kBorderWidth:
      return std::string(kBorders[detail.which]) + NumberedWord("brdrw", detail.value);
    case ParagraphDetail::kBorderGap:
      return std::string(kBorders[detail.which]) + NumberedWord("brsp", detail.value);
    case ParagraphDetail::kBorderColour:
      return std::string(kBorders[detail.which]) +
             NumberedWord("brdrcf", GroundNumber(colour, colours));
    case ParagraphDetail::kShadingAmount:
      return NumberedWord("shading", detail.value);
    case ParagraphDetail::kShadingFront:
      return NumberedWord("cfpat", GroundNumber(colour, colours));
    case ParagraphDetail::kShadingBack:
      return NumberedWord("cbpat", detail.value >= 0 ? GroundNumber(colour, colours) : 0);
  }
  return {};
}

}  // namespace

std::string NumberedWord(std::string_view name, int number) {
  return "\\" + std::string(name) + std::to_string(number);
}

std::string ParagraphWords(const ParagraphLook& look, const ParagraphDetails& details,
                           ColourNumbers& colours) {
  std::string words = "\\pard";
  const auto add = [&](std::string_view name, int number) {
    if (number != 0) words += NumberedWord(name, number);
  };
  if (look.rightToLeft) words += "\\rtlpar";
  words += kAlignments[static_cast<int>(look.alignment)];
  if (look.inTable) words += "\\intbl";
  add("li", look.left);
  add("ri", look.right);
  add("fi", look.first);
  add("sb", look.before);
  add("sa", look.after);
  add("sl", look.lineSpacing);
  if (look.proportional) words += "\\slmult1";
  for (const ParagraphDetail& detail : details[look.details]) words += WordOf(detail, colours);
  return words;
}

int GroundNumber(Colour colour, ColourNumbers& colours) {
  return colour == 0 ? kHighestColour + 1 : static_cast<int>(colours.NumberOf(colour));
}

}  // namespace quill::rtf
