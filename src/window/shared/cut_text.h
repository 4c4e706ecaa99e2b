// The tool tip for text that does not fit its box or row.
#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

namespace quill {

// Shows a text at the mouse, in as many lines as it takes; only the beginning if it is very long.
void TellWhole(const QHelpEvent& event, const QString& text, QWidget& widget);

}  // namespace quill
