#include "window/cut_text.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>

namespace quill {

void TellWhole(const QHelpEvent& event, const QString& text, QWidget& widget) {
  constexpr qsizetype kMost = 2000;
  const QString told = text.size() > kMost ? text.left(kMost) + QChar(0x2026) : text;
  // As rich text, which is broken into lines.
  QToolTip::showText(event.globalPos(), Qt::convertFromPlainText(told, Qt::WhiteSpaceNormal),
                     &widget);
}

}  // namespace quill
