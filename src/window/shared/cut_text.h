// The tool tip of a text that does not fit where it stands.
#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

namespace quill {

// Shows a text at the mouse, in as many lines as it takes; of a very long one, the beginning.
void TellWhole(const QHelpEvent& event, const QString& text, QWidget& widget);

}  // namespace quill
