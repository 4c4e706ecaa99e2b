// The formats of a document as the toolkit's: the four attributes over the look that the author
// gave the text.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <vector>

#include "text/document.h"
#include "text/paragraph_frame.h"

namespace quill {

class TextStyles {
 public:
  // The document must outlive the styles, or be exchanged by another call.
  void Use(const Document& document);

  const QTextCharFormat& Character(FormatId id);
  // Of a small letter that is shown as a small capital. (The toolkit's own ones lose their size
  // when a text is zoomed.)
  QTextCharFormat SmallCapital(FormatId id);
  const QTextBlockFormat& Paragraph(FormatId id);

 private:
  const Document* document_ = nullptr;
  std::vector<QTextCharFormat> characters_;  // invalid where not asked for yet
  std::vector<QTextBlockFormat> paragraphs_;
  std::vector<bool> known_;
  void Learn(FormatId id);
};

QTextBlockFormat ParagraphStyle(const ParagraphLook& look, const ParagraphFrame& frame = {});

// The colour in which a character is written: its own, but grey where it is deleted or hidden and
// no mark says more.
Colour ShownColour(const Format& format);

// How far above the baseline an offset is drawn, in percent of the font's height.
double RaisedPercent(Twips offset, int halfPoints);

}  // namespace quill
