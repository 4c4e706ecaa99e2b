// Control words that change the formatting in force.
#pragma once

#include "rtf/reading/state.h"
#include "rtf/reading/tables.h"
#include "rtf/syntax/words.h"

namespace quill::rtf {

// What the words refer to.
struct Tables {
  FontTable fonts;
  ColourTable colours;
  std::int32_t defaultFont = 0;
  const CodePage* standardPage = nullptr;  // of the document
  bool pageIsNumbered = false;             // it was told by its number
};

// Applies a word to the state. Returns which of the four attributes it sets; nothing if it sets
// anything else.
AttributeChange ApplyStateWord(const WordEntry& entry, const Token& token, const Tables& tables,
                               StateStack& states);

// Selects a font, as \f does.
void SelectFont(std::int32_t number, const Tables& tables, StateStack& states);

}  // namespace quill::rtf
