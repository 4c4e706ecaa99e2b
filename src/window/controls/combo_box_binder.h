// Combo boxes: an edit line that takes any text, and rows to pick from.
#pragma once

#include "window/shared/binder.h"

class QComboBox;
class QString;

namespace quill {

class ComboBoxBinder final : public WidgetBinder {
 public:
  ComboBoxBinder(ComboBox& combo, QWidget& container, Actions& actions);
  void Show() override;

 private:
  ComboBoxBinder(ComboBox& combo, QComboBox& widget, Actions& actions);
  void ShowRows();
  void ShowLine();
  void FitLine();
  void Edited(const QString& now);
  void Picked(int row);

  ComboBox& combo_;
  QComboBox& widget_;
};

}  // namespace quill
