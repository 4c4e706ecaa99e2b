// Text boxes, of one line and of several.
#pragma once

#include <QFont>
#include <optional>

#include "window/shared/binder.h"

class QLineEdit;
class QPlainTextEdit;

namespace quill {

// What both kinds share: colours and weight, and the way of an edit into the model.
class TextBoxBinder : public WidgetBinder {
 public:
  void Show() override;

 protected:
  TextBoxBinder(TextBox& box, QWidget& widget, Actions& actions);

  TextBox& Box() const { return box_; }
  // The user made `now` of what the widget showed.
  void Forward(std::u32string_view shown, std::u32string_view now);

 private:
  void ShowLook();

  TextBox& box_;
  // As last shown: a change of font lays out the whole text.
  std::optional<Colour> background_;
  std::optional<Colour> foreground_;
};

class OneLineBinder final : public TextBoxBinder {
 public:
  OneLineBinder(TextBox& box, QWidget& container, Actions& actions);
  void Show() override;
  void TakeFocus() override;

 private:
  OneLineBinder(TextBox& box, QLineEdit& line, Actions& actions);

  QLineEdit& line_;
};

class SeveralLinesBinder final : public TextBoxBinder {
 public:
  SeveralLinesBinder(TextBox& box, QWidget& container, Actions& actions);
  void Show() override;
  void TakeFocus() override;

 private:
  SeveralLinesBinder(TextBox& box, QPlainTextEdit& edit, Actions& actions);
  // Whether the box opens with the program's own words.
  bool HasStoredText() const;
  QFont FontForStoredText() const;

  QPlainTextEdit& edit_;
};

}  // namespace quill
