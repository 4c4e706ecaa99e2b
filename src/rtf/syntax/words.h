// The control words that the reader knows, and what they mean.
#pragma once

#include <cstdint>
#include <string_view>

namespace quill::rtf {

enum class Word : std::uint8_t {
  kUnknown,
  kKnown,   // formatting that the program does not show; what follows is text all the same
  kHeader,  // may precede the first table of a file
  kData,    // \bin
  // Characters. The argument of kCharacter is the code point.
  kCharacter,
  kParagraph,  // a paragraph end
  kCell,
  kRow,
  kUnicode,  // \u
  // Groups.
  kSkipped,      // a destination whose content is not text
  kTransparent,  // a destination whose content is text
  kField,
  kFieldInstruction,
  kFontTable,
  kColourTable,
  kExpandedColourTable,
  kObject,        // stands for one character
  kPictureForm,   // one of two forms of the same picture
  kAlternatives,  // \upr: the first group gives way to the second
  // The four attributes.
  kColour,
  kOtherColour,  // uses an entry of the colour table for something other than characters
  kBold,
  kAssociatedBold,
  kUnderline,
  kNoUnderline,
  kUp,
  kDown,
  // The rest of the characters' look.
  kPlain,
  kItalic,
  kStrike,
  kHidden,
  kScript,  // argument: 1, -1, 0
  kDeleted,
  kInserted,
  kCapitals,       // argument: a Capitals
  kLetterSpacing,  // argument: how many twips the number counts
  kBackground,
  kFont,
  kFontSize,
  kDirection,  // of the run; argument: 1 right to left
  kFallback,   // \uc
  // The paragraph's look.
  kParagraphDefaults,
  kAlignment,  // argument: an Alignment
  kParagraphDirection,
  kInTable,
  kLeftIndent,
  kRightIndent,
  kFirstIndent,
  kSpaceBefore,
  kSpaceAfter,
  kLineSpacing,
  kLineSpacingIsProportional,
  // The paragraph's details.
  kTabStop,
  kTabAlignment,  // of the stop that follows; argument: a TabAlignment
  kTabLeader,     // the same; argument: a Leader
  kBorder,       // which one the words behind speak of; argument: a BorderSide, or -1 for another's
  kBorderStyle,  // argument: a BorderStyle
  kBorderWidth,
  kBorderGap,
  kBorderColour,
  kShadingAmount,
  kShadingFront,
  kShadingBack,
  // Character sets.
  kDefaultFont,
  kAnsiCodePage,
  kCharacterSet,  // \mac and the like; argument: the code page
  kFontCharset,
  kFontCodePage,
};

struct WordEntry {
  std::string_view name;
  Word word = Word::kUnknown;
  std::int32_t argument = 0;
};

// Higher colour numbers in a file are ignored when the table is extended: no program writes them,
// and a table that reached them would outgrow the file.
inline constexpr std::int32_t kHighestColour = 32767;

// Whether the word's number refers to the colour table.
bool NamesColour(Word word);

// Whether a group that begins with \* and the word is skipped. Groups with words that only change
// the look must be: they were when these words were unknown, and positions count characters.
bool HidesBehindStar(Word word);

// Looks a word up; unknown words get kUnknown. Case-sensitive.
const WordEntry& LookUp(std::string_view name);

}  // namespace quill::rtf
