// What the text's author put around the paragraphs on show.
#pragma once

#include <unordered_map>

#include "text/paragraph_frame.h"
#include "window/text/position_map.h"

class QTextBlock;

namespace quill {

class ParagraphFrames {
 public:
  // Both must outlive the frames.
  ParagraphFrames(const Document& document, const PositionMap& positions);

  // Forgets those of the text before.
  void Clear() { frames_.clear(); }
  const ParagraphFrame& Of(const QTextBlock& paragraph);
  // Whether a paragraph is to stand in one frame with the one above it.
  bool JoinsAbove(const QTextBlock& paragraph) const;

 private:
  ParagraphDetails::List DetailsOf(const QTextBlock& paragraph) const;

  const Document& document_;
  const PositionMap& positions_;
  std::unordered_map<ParagraphDetails::List, ParagraphFrame> frames_;
};

}  // namespace quill
