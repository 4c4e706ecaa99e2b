// The formats of a document as the toolkit's: the four attributes over the look that the author
// gave the text.
#pragma once

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <vector>

#include "text/document.h"

namespace quill {

class TextStyles {
 public:
  // The document must outlive the styles, or be exchanged by another call.
  void Use(const Document& document);

  const QTextCharFormat& Character(FormatId id);
  const QTextBlockFormat& Paragraph(FormatId id);

 private:
  const Document* document_ = nullptr;
  std::vector<QTextCharFormat> characters_;  // invalid where not asked for yet
  std::vector<QTextBlockFormat> paragraphs_;
  std::vector<bool> known_;
  void Learn(FormatId id);
};

QTextBlockFormat ParagraphStyle(const ParagraphLook& look);

// How far above the baseline an offset is drawn, in percent of the font's height.
double RaisedPercent(Twips offset, int halfPoints);

}  // namespace quill
