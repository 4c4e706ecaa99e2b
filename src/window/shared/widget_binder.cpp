#include "window/shared/widget_binder.h"

#include <QWidget>

#include "window/shared/appearance.h"
#include "window/shared/shown.h"

namespace quill {
namespace {

QString SpokenName(const CatalogueRow& row) {
  return row.stored.spoken.empty() ? ToQt(row.text).simplified() : ToQt(row.stored.spoken);
}

QString SpokenDescription(const CatalogueRow& row) {
  if (!row.stored.toolTip.empty()) return ToQt(row.stored.toolTip);
  if (!row.stored.purpose.empty()) return ToQt(row.stored.purpose);
  // A note inside a panel is the panel's description.
  for (const CatalogueRow& inside : Catalogue()) {
    if (inside.kind == Kind::kLabel && inside.container == row.name) return ToQt(inside.text);
  }
  return {};
}

}  // namespace

WidgetBinder::WidgetBinder(const Control& control, QWidget& widget, Actions& actions)
    : control_(control), widget_(widget), actions_(actions) {
  const CatalogueRow& row = control.Row();
  widget.setObjectName(
      QString::fromLatin1(row.name.data(), static_cast<qsizetype>(row.name.size())));
  widget.setGeometry(Pixels(row.place.left), Pixels(row.place.top), Pixels(row.place.width),
                     Pixels(row.place.height));
  widget.setFont(FontOf(row));
  widget.setToolTip(ToQt(row.stored.toolTip));
  widget.setAccessibleName(SpokenName(row));
  widget.setAccessibleDescription(SpokenDescription(row));
  if (!row.stored.tabStop) widget.setFocusPolicy(Qt::ClickFocus);
}

void WidgetBinder::Show() {
  widget_.setEnabled(control_.Enabled);
  widget_.setVisible(control_.Visible);
}

void WidgetBinder::TakeFocus() { widget_.setFocus(Qt::OtherFocusReason); }

}  // namespace quill
