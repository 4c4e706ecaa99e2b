// Combo boxes: an edit line that takes any text, and rows to pick from.
#include "window/controls/binders.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "window/shared/appearance.h"
#include "window/shared/edit_widgets.h"
#include "window/shared/shown.h"
#include "window/shared/widget_binder.h"

namespace quill {
namespace {

// Rows are picked deliberately only: turning the wheel over a closed box is meant to scroll
// something else.
class Combo : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

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

ComboBoxBinder::ComboBoxBinder(ComboBox& combo, QWidget& container, Actions& actions)
    : ComboBoxBinder(combo, *new Combo(&container), actions) {}

ComboBoxBinder::ComboBoxBinder(ComboBox& combo, QComboBox& widget, Actions& actions)
    : WidgetBinder(combo, widget, actions), combo_(combo), widget_(widget) {
  widget.setLineEdit(new LineEdit(&widget));
  widget.setInsertPolicy(QComboBox::NoInsert);
  widget.setCompleter(nullptr);
  widget.setMaxVisibleItems(20);
  widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  QLineEdit& line = *widget.lineEdit();
  line.setAccessibleName(widget.accessibleName());
  widget.view()->setAccessibleName(widget.accessibleName());
  // When Enter is pressed or the line loses the focus, the toolkit would pick the row with the same
  // text.
  QObject::disconnect(&line, &QLineEdit::editingFinished, nullptr, nullptr);
  QObject::connect(&line, &QLineEdit::textEdited, &widget,
                   [this](const QString& now) { Edited(now); });
  QObject::connect(&widget, &QComboBox::activated, &widget, [this](int row) { Picked(row); });
}

void ComboBoxBinder::Edited(const QString& now) {
  if (TheActions().Running()) return;
  const std::u32string edited =
      ForwardEdit(combo_.Text.Get(), FromQt(ToQt(combo_.Text.Get())), FromQt(now));
  TheActions().Do([&](Program& program) { program.Edit(combo_, edited); });
  Show();
}

void ComboBoxBinder::Picked(int row) {
  TheActions().Do([&](Program& program) { program.Pick(combo_, row); });
  Show();
  widget_.lineEdit()->home(false);
}

void ComboBoxBinder::Show() {
  WidgetBinder::Show();
  const QSignalBlocker quiet(widget_);
  ShowRows();
  ShowLine();
  FitLine();
}

void ComboBoxBinder::ShowRows() {
  for (int row = 0; row < combo_.ListCount(); ++row) {
    const QString text = ToQt(combo_.List(row));
    if (row == widget_.count()) {
      widget_.addItem(text);
    } else if (widget_.itemText(row) != text) {
      widget_.setItemText(row, text);
    }
  }
}

// After the rows: the toolkit writes to the edit line when they change.
void ComboBoxBinder::ShowLine() {
  QLineEdit& line = *widget_.lineEdit();
  const QString text = ToQt(combo_.Text.Get());
  const int row = widget_.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (widget_.currentIndex() == row && line.text() == text) return;
  const int cursor = line.text() == text ? line.cursorPosition() : 0;
  widget_.setCurrentIndex(row);
  line.setText(text);
  line.setCursorPosition(cursor);
}

void ComboBoxBinder::FitLine() {
  // The longest rows barely fit beside the arrow.
  constexpr int kArrowAndEdges = 28;
  const QSize room(widget_.width() - kArrowAndEdges, widget_.height());
  QLineEdit& line = *widget_.lineEdit();
  line.setFont(FittingFont(widget_.font(), line.text().trimmed(), room));
}

}  // namespace

std::unique_ptr<Binder> BindComboBox(ComboBox& combo, QWidget& container, Actions& actions) {
  return std::make_unique<ComboBoxBinder>(combo, container, actions);
}

}  // namespace quill
