// The places of the controls that lie directly in the window, depending on its size.
#pragma once

#include <QRect>
#include <QSize>

#include "workbench/catalogue.h"

namespace quill {

// The stored size of the window's inside, and the smallest at which the text still shows some
// lines.
QSize StoredSize();
QSize LeastSize();

// `room` is the visible part of the window's inside; below the least size the controls extend
// beyond it. The text gains what the window gains and loses what it loses. The panels below the
// text keep their size and move down; those over it keep their places. The guidance box stays at
// the right end of the text, and while it is shown the text ends beside it, so that every line can
// be read in full.
QRect PlaceIn(QSize room, const CatalogueRow& row, bool guidanceShown);

}  // namespace quill
