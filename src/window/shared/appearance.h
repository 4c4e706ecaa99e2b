// The look of the window: its light colours whatever the desktop's, its fonts and its measures.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

#include "workbench/catalogue.h"

class QApplication;
class QPalette;
class QWidget;

namespace quill {

// A plain colour, or the one that stands here for a colour of the window system.
QColor ToQColor(Colour colour);
Colour FromQColor(const QColor& colour);

// Black or white, whichever is read well on it.
QColor TextOn(const QColor& background);

// Style, palette and font of the whole application.
void SetLook(QApplication& application);

// What a row's controls are drawn on: its own colour, or that of the window for the kinds that
// have none of their own.
QColor BackgroundOf(const CatalogueRow& row);

// Device-independent pixels at a scale of 100 %.
constexpr int Pixels(int twips) { return twips / 15; }

// The font of a control, in pixels: places are stored in pixels of 96 to an inch, so type has to
// keep their scale. 0 points is the size of controls that store none.
QFont ControlFont(double points, bool bold);
inline QFont FontOf(const CatalogueRow& row) {
  return ControlFont(row.stored.points, row.stored.bold);
}

// The font, narrowed and then made smaller as far as needed (and as can be read) for the wrapped
// text to fit.
QFont FittingFont(const QFont& font, const QString& text, QSize room);

// The same for the text's lines to stay unbroken in that width. Blanks around a line don't count.
QFont UnbrokenFont(const QFont& font, const QString& text, int width);

// Whether the text, wrapped between words, shows whole in that room.
bool Fits(const QFont& font, const QString& text, QSize room);

// How a button's caption is laid on its face.
struct Caption {
  QFont font;
  QRect room;
};
Caption LayCaption(const QFont& font, const QString& text, const QRect& face);
// How a panel's title is laid in its upper edge, in bold.
Caption LayTitle(QFont font, const QString& text, const QRect& panel);

// Writes a colour of one role for the enabled states, and a paler one for the disabled state.
void SetColours(QWidget& widget, const QColor& background, const QColor& text);

}  // namespace quill
