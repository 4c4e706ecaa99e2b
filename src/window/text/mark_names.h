// Marks in words, for whoever does not tell them by their colours.
#pragma once

#include <QString>

#include "text/document.h"

namespace quill {

// What a character is marked as, as "Kind A (blue), marked"; empty where it is not.
QString MarkName(const Attributes& attributes);

// The mark at the caret: of the first selected character or, without a selection, of a neighbour.
QString MarkNameAt(const Document& document, Range selection);

}  // namespace quill
