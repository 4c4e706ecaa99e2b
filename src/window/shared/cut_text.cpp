#include "window/shared/cut_text.h"

#include <QHelpEvent>
#include <QToolTip>

namespace quill {

void TellWhole(const QHelpEvent& event, const QString& text, QWidget& widget) {
  constexpr qsizetype kMost = 2000;
  const QString told = text.size() > kMost ? text.left(kMost) + QChar(0x2026) : text;
  // As rich text, because the toolkit breaks only that into lines.
  const QString shown = QStringLiteral("<p style='white-space:pre-wrap'>%1</p>");
  QToolTip::showText(event.globalPos(), shown.arg(told.toHtmlEscaped()), &widget);
}

}  // namespace quill
