#include "window/text/paragraph_frames.h"

#include <QTextBlock>

namespace quill {

ParagraphFrames::ParagraphFrames(const Document& document, const PositionMap& positions)
    : document_(document), positions_(positions) {}

ParagraphDetails::List ParagraphFrames::DetailsOf(const QTextBlock& paragraph) const {
  if (document_.Length() == 0) return 0;
  const Position end = positions_.ToModel(paragraph.position() + paragraph.length() - 1);
  return document_.FormatAt(std::min(end, document_.Length() - 1)).paragraph.details;
}

const ParagraphFrame& ParagraphFrames::Of(const QTextBlock& paragraph) {
  const ParagraphDetails::List list = DetailsOf(paragraph);
  const auto [entry, isNew] = frames_.try_emplace(list);
  if (isNew) entry->second = FrameOf(document_.Formats().Details()[list]);
  return entry->second;
}

bool ParagraphFrames::JoinsAbove(const QTextBlock& paragraph) const {
  const QTextBlock above = paragraph.previous();
  if (!above.isValid() || DetailsOf(above) != DetailsOf(paragraph)) return false;
  const QTextBlockFormat style = paragraph.blockFormat();
  const QTextBlockFormat other = above.blockFormat();
  return style.leftMargin() == other.leftMargin() && style.rightMargin() == other.rightMargin();
}

}  // namespace quill
