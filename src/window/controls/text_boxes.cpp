// Text boxes, single-line and multi-line.
#include "window/controls/binders.h"

#include <QFont>
#include <QSignalBlocker>
#include <QStyle>
#include <optional>

#include "window/shared/appearance.h"
#include "window/shared/edit_widgets.h"
#include "window/shared/shown.h"
#include "window/shared/widget_binder.h"

namespace quill {
namespace {

// What both kinds share: colours, weight, and how an edit gets into the model.
class TextBoxBinder : public WidgetBinder {
 public:
  void Show() override;

 protected:
  TextBoxBinder(TextBox& box, QWidget& widget, Actions& actions);

  TextBox& Box() const { return box_; }
  // The user has turned what the widget showed into `now`.
  void Forward(std::u32string_view shown, std::u32string_view now);

 private:
  void ShowLook();

  TextBox& box_;
  // As last shown: a change of font lays out the whole text again.
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
  // Whether the box starts with a long text from the catalogue.
  bool HasStoredText() const;
  QFont FontForStoredText() const;

  QPlainTextEdit& edit_;
};

TextBoxBinder::TextBoxBinder(TextBox& box, QWidget& widget, Actions& actions)
    : WidgetBinder(box, widget, actions), box_(box) {}

void TextBoxBinder::Forward(std::u32string_view shown, std::u32string_view now) {
  if (TheActions().Running()) return;
  const std::u32string edited = ForwardEdit(box_.Text.Get(), shown, now);
  TheActions().Do([&](Program& program) { program.Edit(box_, edited); });
  // Even if the program took none of it.
  Show();
}

void TextBoxBinder::Show() {
  WidgetBinder::Show();
  ShowLook();
}

void TextBoxBinder::ShowLook() {
  if (background_ != box_.BackColor.Get() || foreground_ != box_.ForeColor.Get()) {
    background_ = box_.BackColor.Get();
    foreground_ = box_.ForeColor.Get();
    const QColor background = ToQColor(*background_);
    // The lemma has its kind's colour as background: on a dark one, the system's text colour gives
    // way.
    const bool own = *foreground_ != kWindowText || IsSystemColour(*background_);
    SetColours(*Widget(), background, own ? ToQColor(*foreground_) : TextOn(background));
  }
  QFont font = Widget()->font();
  if (font.bold() != box_.FontBold.Get()) {
    font.setBold(box_.FontBold);
    Widget()->setFont(font);
  }
}

OneLineBinder::OneLineBinder(TextBox& box, QWidget& container, Actions& actions)
    : OneLineBinder(box, *new LineEdit(&container), actions) {}

OneLineBinder::OneLineBinder(TextBox& box, QLineEdit& line, Actions& actions)
    : TextBoxBinder(box, line, actions), line_(line) {
  if (box.Row().stored.centred) line.setAlignment(Qt::AlignCenter);
  QObject::connect(&line, &QLineEdit::textEdited, &line, [this](const QString& now) {
    Forward(FromQt(ToQt(Box().Text.Get())), FromQt(now));
  });
}

void OneLineBinder::Show() {
  TextBoxBinder::Show();
  const QString text = ToQt(Box().Text.Get());
  if (line_.text() == text) return;
  line_.setText(text);
  // While nobody types, the beginning says more than the end.
  line_.setCursorPosition(line_.hasFocus() ? static_cast<int>(text.size()) : 0);
}

// The user continues after what the program wrote.
void OneLineBinder::TakeFocus() {
  WidgetBinder::TakeFocus();
  line_.end(false);
}

SeveralLinesBinder::SeveralLinesBinder(TextBox& box, QWidget& container, Actions& actions)
    : SeveralLinesBinder(box, *new SeveralLinesEdit(&container), actions) {}

SeveralLinesBinder::SeveralLinesBinder(TextBox& box, QPlainTextEdit& edit, Actions& actions)
    : TextBoxBinder(box, edit, actions), edit_(edit) {
  edit.setVerticalScrollBarPolicy(box.Row().stored.verticalScrollBar ? Qt::ScrollBarAlwaysOn
                                                                     : Qt::ScrollBarAlwaysOff);
  edit.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  edit.document()->setDocumentMargin(3);
  if (HasStoredText()) edit.setFont(FontForStoredText());
  QObject::connect(&edit, &QPlainTextEdit::textChanged, &edit,
                   [this] { Forward(ShownText(Box().Text.Get()), RawText(*edit_.document())); });
}

bool SeveralLinesBinder::HasStoredText() const {
  return Box().Name() == "Infotext" || Box().Name() == "User_Dialogue";
}

// The stored text is meant to fit as a whole or, in a box that scrolls, line by line.
QFont SeveralLinesBinder::FontForStoredText() const {
  const QString text = ToQt(Box().Row().text);
  constexpr QSize kMargins(12, 10);
  const QSize room = edit_.size() - kMargins;
  if (!Box().Row().stored.verticalScrollBar) return FittingFont(edit_.font(), text, room);
  const int bar = edit_.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return UnbrokenFont(edit_.font(), text, room.width() - bar);
}

void SeveralLinesBinder::Show() {
  TextBoxBinder::Show();
  const std::u32string text = ShownText(Box().Text.Get());
  if (RawText(*edit_.document()) == text) return;
  const QSignalBlocker quiet(edit_);
  edit_.setPlainText(ToQt(text));
  if (edit_.hasFocus()) edit_.moveCursor(QTextCursor::End);
}

void SeveralLinesBinder::TakeFocus() {
  WidgetBinder::TakeFocus();
  edit_.moveCursor(QTextCursor::End);
}

}  // namespace

std::unique_ptr<Binder> BindTextBox(TextBox& box, QWidget& container, Actions& actions) {
  if (box.Row().stored.multiLine)
    return std::make_unique<SeveralLinesBinder>(box, container, actions);
  return std::make_unique<OneLineBinder>(box, container, actions);
}

}  // namespace quill
