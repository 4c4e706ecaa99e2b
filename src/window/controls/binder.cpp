#include "window/shared/binder.h"

#include <QWidget>
#include <stdexcept>

#include "window/controls/button_binder.h"
#include "window/controls/combo_box_binder.h"
#include "window/controls/frame_binder.h"
#include "window/controls/list_box_binder.h"
#include "window/controls/names.h"
#include "window/controls/text_box_binder.h"
#include "window/shared/appearance.h"
#include "window/shared/shown.h"

namespace quill {

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

std::unique_ptr<Binder> MakeBinder(Control& control, QWidget& container, Actions& actions) {
  switch (control.Kind()) {
    case Kind::kTextBox: {
      auto& box = static_cast<TextBox&>(control);
      if (control.Row().stored.multiLine) {
        return std::make_unique<SeveralLinesBinder>(box, container, actions);
      }
      return std::make_unique<OneLineBinder>(box, container, actions);
    }
    case Kind::kComboBox:
      return std::make_unique<ComboBoxBinder>(static_cast<ComboBox&>(control), container, actions);
    case Kind::kListBox:
      return std::make_unique<ListBoxBinder>(static_cast<ListBox&>(control), container, actions);
    case Kind::kButton:
      return std::make_unique<ButtonBinder>(static_cast<CommandButton&>(control), container,
                                            actions);
    case Kind::kFrame:
      return std::make_unique<FrameBinder>(static_cast<Frame&>(control), container, actions);
    case Kind::kLabel:
      return std::make_unique<LabelBinder>(static_cast<Label&>(control), container, actions);
    default:
      throw std::logic_error("no widget for " + std::string(control.Name()));
  }
}

}  // namespace quill
