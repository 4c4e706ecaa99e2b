// Control words for tab stops, borders and shading. Some of them speak of what another one names.
#pragma once

#include <cstdint>
#include <optional>

#include "rtf/reading/state.h"
#include "rtf/syntax/lexer.h"
#include "rtf/syntax/words.h"
#include "text/source.h"

namespace quill::rtf {

class DetailWords {
 public:
  // Carries out a word, kTabStop to kShadingBack.
  void Take(const WordEntry& entry, const Token& token, const ColourTable& colours,
            StateStack& states);

 private:
  std::optional<ParagraphDetail> DetailOf(const WordEntry& entry, const Token& token,
                                          const ColourTable& colours);
  std::optional<ParagraphDetail> OfBorder(ParagraphDetail::Kind kind, std::int32_t value) const;

  // Of the tab stop that comes next.
  TabAlignment alignment_ = TabAlignment::kLeft;
  Leader leader_ = Leader::kNone;
  std::int32_t border_ = -1;  // a BorderSide; -1 where it is no paragraph's
};

}  // namespace quill::rtf
