// The look of the window: its colours, light whatever the desktop's, its fonts and its measures.
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

// A plain colour, or the one used here for a colour of the window system.
QColor ToQColor(Colour colour);
Colour FromQColor(const QColor& colour);

// Black or white, whichever reads well on the background.
QColor TextOn(const QColor& background);

// Style, palette and font of the whole application.
void SetLook(QApplication& application);

// The background of a control: its own colour, or the window's for kinds that have none.
QColor BackgroundOf(const CatalogueRow& row);

// Device-independent pixels at a scale of 100 %.
constexpr int Pixels(int twips) { return twips / 15; }

// The font of a control, in pixels: places are stored for 96 pixels to the inch, and type must keep
// to that scale. 0 points means the size of controls that store none.
QFont ControlFont(double points, bool bold);
inline QFont FontOf(const CatalogueRow& row) {
  return ControlFont(row.stored.points, row.stored.bold);
}

// The font, narrowed and then made smaller as far as needed, within legibility, for the wrapped
// text to fit.
QFont FittingFont(const QFont& font, const QString& text, QSize room);

// The same for the lines of the text to stay unbroken in that width. Blanks around a line don't
// count.
QFont UnbrokenFont(const QFont& font, const QString& text, int width);

// Whether the whole text shows in that room, wrapped between words.
bool Fits(const QFont& font, const QString& text, QSize room);

// The layout of a button's caption on its face.
struct Caption {
  QFont font;
  QRect room;
};
Caption LayCaption(const QFont& font, const QString& text, const QRect& face);
// The layout of a panel's title in its upper edge, in bold.
Caption LayTitle(QFont font, const QString& text, const QRect& panel);

// Sets the colours for the enabled states, and paler ones for the disabled state.
void SetColours(QWidget& widget, const QColor& background, const QColor& text);

}  // namespace quill
