#include "rtf/state_words.h"

#include <algorithm>
#include <limits>

namespace quill::rtf {
namespace {

// \up and \dn without a number.
constexpr std::int32_t kDefaultHalfPoints = 6;
constexpr std::int32_t kDefaultFontSize = 24;
constexpr std::int32_t kMostHalfPoints = 32767;

// Writes one member of the state, where it differs. `member` takes a state and gives the member.
template <class Member, class T>
void Set(StateStack& states, Member member, T value) {
  if (member(states.Now()) != value) member(states.Change()) = value;
}

AttributeChange SetAttributes(StateStack& states, const AttributeChange& change) {
  Set(
      states, [](auto& s) -> auto& { return s.attributes; },
      Changed(states.Now().attributes, change));
  return change;
}

bool IsOn(const Token& token) { return !token.hasNumber || token.number != 0; }

Twips OffsetOf(const Token& token) {
  const std::int32_t halfPoints = token.hasNumber ? token.number : kDefaultHalfPoints;
  return std::clamp(halfPoints, -kMostHalfPoints, kMostHalfPoints) * kTwipsInHalfPoint;
}

template <class T>
T Clamped(std::int32_t number) {
  return static_cast<T>(std::clamp<std::int32_t>(number, std::numeric_limits<T>::min(),
                                                 std::numeric_limits<T>::max()));
}

// Each direction has a weight of its own: the one in force is the run's.
void SetDirection(StateStack& states, bool rightToLeft) {
  if (states.Now().look.rightToLeft == rightToLeft) return;
  State& state = states.Change();
  state.look.rightToLeft = rightToLeft;
  std::swap(state.attributes.bold, state.otherBold);
}

void SetPlain(const Tables& tables, StateStack& states) {
  State& state = states.Change();
  const std::uint16_t fallback = state.look.fallback;
  state.attributes = {};
  state.otherBold = false;
  state.look = {};
  state.look.fallback = fallback;
  SelectFont(tables.defaultFont, tables, states);
}

bool ApplyAttribute(const WordEntry& entry, const Token& token, const Tables& tables,
                    StateStack& states, AttributeChange& change) {
  switch (entry.word) {
    case Word::kColour:
      change = SetAttributes(states, {.colour = ColourOf(tables.colours, token.number)});
      return true;
    case Word::kBold:
      change = SetAttributes(states, {.bold = IsOn(token)});
      return true;
    case Word::kAssociatedBold:
      // The weight of right-to-left runs goes by this name.
      if (states.Now().look.rightToLeft) change = SetAttributes(states, {.bold = IsOn(token)});
      return true;
    case Word::kUnderline:
      change = SetAttributes(states, {.underline = IsOn(token)});
      return true;
    case Word::kNoUnderline:
      change = SetAttributes(states, {.underline = false});
      return true;
    case Word::kUp:
      change = SetAttributes(states, {.offset = OffsetOf(token)});
      return true;
    case Word::kDown:
      change = SetAttributes(states, {.offset = -OffsetOf(token)});
      return true;
    default:
      return false;
  }
}

bool ApplyLook(const WordEntry& entry, const Token& token, const Tables& tables,
               StateStack& states) {
  switch (entry.word) {
    case Word::kPlain:
      SetPlain(tables, states);
      return true;
    case Word::kItalic:
      Set(
          states, [](auto& s) -> auto& { return s.look.italic; }, IsOn(token));
      return true;
    case Word::kStrike:
      Set(
          states, [](auto& s) -> auto& { return s.look.struckOut; }, IsOn(token));
      return true;
    case Word::kHidden:
      Set(
          states, [](auto& s) -> auto& { return s.look.hidden; }, IsOn(token));
      return true;
    case Word::kScript:
      Set(
          states, [](auto& s) -> auto& { return s.look.script; },
          IsOn(token) ? Clamped<std::int8_t>(entry.argument) : std::int8_t{0});
      return true;
    case Word::kBackground:
      Set(
          states, [](auto& s) -> auto& { return s.look.background; },
          token.number > 0 ? static_cast<std::int32_t>(ColourOf(tables.colours, token.number))
                           : -1);
      return true;
    case Word::kFont:
      SelectFont(token.number, tables, states);
      return true;
    case Word::kFontSize:
      Set(
          states, [](auto& s) -> auto& { return s.look.halfPoints; },
          Clamped<std::uint16_t>(std::max(1, token.hasNumber ? token.number : kDefaultFontSize)));
      return true;
    case Word::kDirection:
      SetDirection(states, entry.argument != 0);
      return true;
    case Word::kFallback:
      Set(
          states, [](auto& s) -> auto& { return s.look.fallback; },
          Clamped<std::uint16_t>(token.hasNumber ? token.number : 1));
      return true;
    default:
      return false;
  }
}

void ApplyParagraph(const WordEntry& entry, const Token& token, StateStack& states) {
  const auto length = Clamped<std::int16_t>(token.number);
  switch (entry.word) {
    case Word::kParagraphDefaults:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph; }, ParagraphLook());
      return;
    case Word::kAlignment:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.alignment; },
          static_cast<Alignment>(entry.argument));
      return;
    case Word::kParagraphDirection:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.rightToLeft; }, entry.argument != 0);
      return;
    case Word::kInTable:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.inTable; }, IsOn(token));
      return;
    case Word::kLeftIndent:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.left; }, length);
      return;
    case Word::kRightIndent:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.right; }, length);
      return;
    case Word::kFirstIndent:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.first; }, length);
      return;
    case Word::kSpaceBefore:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.before; }, length);
      return;
    case Word::kSpaceAfter:
      Set(
          states, [](auto& s) -> auto& { return s.paragraph.after; }, length);
      return;
    default:
      return;
  }
}

}  // namespace

AttributeChange ApplyStateWord(const WordEntry& entry, const Token& token, const Tables& tables,
                               StateStack& states) {
  AttributeChange change;
  if (!ApplyAttribute(entry, token, tables, states, change) &&
      !ApplyLook(entry, token, tables, states)) {
    ApplyParagraph(entry, token, states);
  }
  return change;
}

void SelectFont(std::int32_t number, const Tables& tables, StateStack& states) {
  const Font* const font = tables.fonts.Find(number);
  Set(
      states, [](auto& s) -> auto& { return s.look.font; },
      font != nullptr ? font->face : std::uint16_t{0});
  Set(
      states, [](auto& s) -> auto& { return s.page; },
      font != nullptr ? font->page : tables.standardPage);
}

}  // namespace quill::rtf
