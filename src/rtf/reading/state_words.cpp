#include "rtf/reading/state_words.h"

#include <algorithm>
#include <limits>

namespace quill::rtf {
namespace {

// \up and \dn without a number.
constexpr std::int32_t kDefaultHalfPoints = 6;
constexpr std::int32_t kDefaultFontSize = 24;
constexpr std::int32_t kMostHalfPoints = 32767;

bool IsOn(const Token& token) { return !token.hasNumber || token.number != 0; }

Twips OffsetOf(const Token& token) {
  const std::int32_t halfPoints = token.hasNumber ? token.number : kDefaultHalfPoints;
  return std::clamp(halfPoints, -kMostHalfPoints, kMostHalfPoints) * kTwipsInHalfPoint;
}

template <class T>
T Clamped(std::int64_t number) {
  return static_cast<T>(std::clamp<std::int64_t>(number, std::numeric_limits<T>::min(),
                                                 std::numeric_limits<T>::max()));
}

std::int32_t BackgroundOf(const Token& token, const Tables& tables) {
  if (token.number <= 0) return -1;
  return static_cast<std::int32_t>(ColourOf(tables.colours, token.number));
}

// Each direction has its own weight.
void SetDirection(bool rightToLeft, StateStack& states) {
  State next = states.Now();
  if (next.look.rightToLeft == rightToLeft) return;
  next.look.rightToLeft = rightToLeft;
  std::swap(next.attributes.bold, next.otherBold);
  states.Set(next);
}

void SetPlain(const Tables& tables, StateStack& states) {
  State next = states.Now();
  next.attributes = {};
  next.otherBold = false;
  next.look = {};
  next.look.fallback = states.Now().look.fallback;
  states.Set(next);
  SelectFont(tables.defaultFont, tables, states);
}

AttributeChange AttributesOf(const WordEntry& entry, const Token& token, const Tables& tables,
                             const State& state) {
  switch (entry.word) {
    case Word::kColour:
      return {.colour = ColourOf(tables.colours, token.number)};
    case Word::kBold:
      return {.bold = IsOn(token)};
    case Word::kAssociatedBold:
      // This is the weight of right-to-left runs.
      if (!state.look.rightToLeft) return {};
      return {.bold = IsOn(token)};
    case Word::kUnderline:
      return {.underline = IsOn(token)};
    case Word::kNoUnderline:
      return {.underline = false};
    case Word::kUp:
      return {.offset = OffsetOf(token)};
    case Word::kDown:
      return {.offset = -OffsetOf(token)};
    default:
      return {};
  }
}

void ApplyLook(const WordEntry& entry, const Token& token, const Tables& tables,
               StateStack& states) {
  CharacterLook next = states.Now().look;
  switch (entry.word) {
    case Word::kPlain:
      return SetPlain(tables, states);
    case Word::kFont:
      return SelectFont(token.number, tables, states);
    case Word::kDirection:
      return SetDirection(entry.argument != 0, states);
    case Word::kItalic:
      next.italic = IsOn(token);
      break;
    case Word::kStrike:
      next.struckOut = IsOn(token);
      break;
    case Word::kHidden:
      next.hidden = IsOn(token);
      break;
    case Word::kScript:
      next.script = IsOn(token) ? Clamped<std::int8_t>(entry.argument) : std::int8_t{0};
      break;
    case Word::kDeleted:
      next.deleted = IsOn(token);
      break;
    case Word::kInserted:
      next.inserted = IsOn(token);
      break;
    case Word::kCapitals:
      next.capitals = IsOn(token) ? static_cast<Capitals>(entry.argument) : Capitals::kAsWritten;
      break;
    case Word::kLetterSpacing:
      next.spacing = Clamped<std::int16_t>(std::int64_t{token.number} * entry.argument);
      break;
    case Word::kBackground:
      next.background = BackgroundOf(token, tables);
      break;
    case Word::kFontSize:
      next.halfPoints =
          Clamped<std::uint16_t>(std::max(1, token.hasNumber ? token.number : kDefaultFontSize));
      break;
    case Word::kFallback:
      next.fallback = Clamped<std::uint16_t>(token.hasNumber ? token.number : 1);
      break;
    default:
      break;
  }
  states.Set(next);
}

void ApplyParagraph(const WordEntry& entry, const Token& token, StateStack& states) {
  ParagraphLook next = states.Now().paragraph;
  const auto length = Clamped<std::int16_t>(token.number);
  switch (entry.word) {
    case Word::kParagraphDefaults:
      next = {};
      break;
    case Word::kAlignment:
      next.alignment = static_cast<Alignment>(entry.argument);
      break;
    case Word::kParagraphDirection:
      next.rightToLeft = entry.argument != 0;
      break;
    case Word::kInTable:
      next.inTable = IsOn(token);
      break;
    case Word::kLeftIndent:
      next.left = length;
      break;
    case Word::kRightIndent:
      next.right = length;
      break;
    case Word::kFirstIndent:
      next.first = length;
      break;
    case Word::kSpaceBefore:
      next.before = length;
      break;
    case Word::kSpaceAfter:
      next.after = length;
      break;
    case Word::kLineSpacing:
      next.lineSpacing = length;
      break;
    case Word::kLineSpacingIsProportional:
      next.proportional = IsOn(token);
      break;
    default:
      break;
  }
  states.Set(next);
}

}  // namespace

AttributeChange ApplyStateWord(const WordEntry& entry, const Token& token, const Tables& tables,
                               StateStack& states) {
  AttributeChange change;
  if (entry.word >= Word::kColour && entry.word <= Word::kDown) {
    change = AttributesOf(entry, token, tables, states.Now());
    states.Set(Changed(states.Now().attributes, change));
  } else if (entry.word >= Word::kPlain && entry.word <= Word::kFallback) {
    ApplyLook(entry, token, tables, states);
  } else if (entry.word >= Word::kParagraphDefaults &&
             entry.word <= Word::kLineSpacingIsProportional) {
    ApplyParagraph(entry, token, states);
  }
  return change;
}

void SelectFont(std::int32_t number, const Tables& tables, StateStack& states) {
  const Font* const font = tables.fonts.Find(number);
  CharacterLook next = states.Now().look;
  next.font = font != nullptr ? font->face : std::uint16_t{0};
  states.Set(next);
  states.Set(font != nullptr ? *font->page : *tables.standardPage);
}

}  // namespace quill::rtf
