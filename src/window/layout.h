// Where what lies directly in the window goes, by the size of the window.
#pragma once

#include <QRect>
#include <QSize>

#include "workbench/catalogue.h"

namespace quill {

// The stored size of the window's inside, and the least at which the text still shows some lines.
QSize StoredSize();
QSize LeastSize();

// The room is what is seen of the window's inside; below the least size it lies on more than that.
// The text takes what the window grows by, and gives what it lacks. The panels under it keep their
// size and move down; those over it keep their places. The guidance box stays at the text's right
// end, and while it is shown the text ends beside it, so that all of every line can be read.
QRect PlaceIn(QSize room, const CatalogueRow& row, bool guidanceShown);

}  // namespace quill
