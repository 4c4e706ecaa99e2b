#include "rtf/reading/detail_words.h"

#include <utility>

#include "rtf/reading/tables.h"

namespace quill::rtf {

void DetailWords::Take(const WordEntry& entry, const Token& token, const ColourTable& colours,
                       StateStack& states) {
  const std::optional<ParagraphDetail> detail = DetailOf(entry, token, colours);
  if (!detail) return;
  ParagraphLook next = states.Now().paragraph;
  next.details = states.Details().Add(next.details, *detail);
  states.Set(next);
}

std::optional<ParagraphDetail> DetailWords::DetailOf(const WordEntry& entry, const Token& token,
                                                     const ColourTable& colours) {
  const auto colour = [&] { return static_cast<std::int32_t>(ColourOf(colours, token.number)); };
  switch (entry.word) {
    case Word::kTabAlignment:
      alignment_ = static_cast<TabAlignment>(entry.argument);
      return std::nullopt;
    case Word::kTabLeader:
      leader_ = static_cast<Leader>(entry.argument);
      return std::nullopt;
    case Word::kTabStop: {
      const auto kind = ParagraphDetail::TabKind(std::exchange(alignment_, TabAlignment::kLeft),
                                                 std::exchange(leader_, Leader::kNone));
      return ParagraphDetail{ParagraphDetail::kTabStop, kind, token.number};
    }
    case Word::kBorder:
      border_ = entry.argument;
      return std::nullopt;
    case Word::kBorderStyle:
      return OfBorder(ParagraphDetail::kBorderStyle, entry.argument);
    case Word::kBorderWidth:
      return OfBorder(ParagraphDetail::kBorderWidth, token.number);
    case Word::kBorderGap:
      return OfBorder(ParagraphDetail::kBorderGap, token.number);
    case Word::kBorderColour:
      return OfBorder(ParagraphDetail::kBorderColour, colour());
    case Word::kShadingAmount:
      return ParagraphDetail{ParagraphDetail::kShadingAmount, 0, token.number};
    case Word::kShadingFront:
      return ParagraphDetail{ParagraphDetail::kShadingFront, 0, colour()};
    case Word::kShadingBack:
      // Number 0 stands for none.
      return ParagraphDetail{ParagraphDetail::kShadingBack, 0, token.number > 0 ? colour() : -1};
    default:
      return std::nullopt;
  }
}

std::optional<ParagraphDetail> DetailWords::OfBorder(ParagraphDetail::Kind kind,
                                                     std::int32_t value) const {
  if (border_ < 0) return std::nullopt;
  return ParagraphDetail{kind, static_cast<std::uint8_t>(border_), value};
}

}  // namespace quill::rtf
