#include "shown_window.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>
#include <algorithm>
#include <sstream>

#include "text/unicode.h"
#include "window/shared/appearance.h"
#include "window/shared/shown.h"
#include "window/text/text_styles.h"

namespace quill::test {
namespace {

QString NameOf(const Control& control) {
  return QString::fromLatin1(control.Name().data(), static_cast<qsizetype>(control.Name().size()));
}

template <class W>
W& Find(const QMainWindow& window, const Control& control) {
  W* const widget = window.findChild<W*>(NameOf(control));
  if (widget == nullptr) throw std::logic_error("no widget for " + std::string(control.Name()));
  return *widget;
}

bool IsShown(const Form1& form, const Control& control) {
  const Control* at = &control;
  while (at != &form && at->Visible) at = &form.ContainerOf(*at);
  return at == &form;
}

bool IsEnabled(const Form1& form, const Control& control) {
  const Control* at = &control;
  while (at != &form && at->Enabled) at = &form.ContainerOf(*at);
  return at == &form;
}

// The text of the model as the text's widget is to hold it.
std::u32string ExpectedText(const TextSurface& text) {
  std::u32string expected;
  for (Position i = 0; i < text.Length(); ++i) {
    const FontFace& face = text.Doc().Fonts()[text.Doc().FormatAt(i).look.font];
    expected += ShownInText(text.Text().substr(static_cast<std::size_t>(i), 1), face.name);
  }
  return expected;
}

Attributes AttributesOf(const QTextCharFormat& style) {
  return {FromQColor(style.foreground().color()), style.fontWeight() == QFont::Bold,
          style.fontUnderline(), style.baselineOffset() > 0 ? 1 : 0};
}

// The attributes of each character, paragraph ends left out.
std::vector<Attributes> ShownAttributes(const QTextDocument& document) {
  std::vector<Attributes> shown;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const std::size_t length = FromQt(it.fragment().text()).size();
      shown.insert(shown.end(), length, AttributesOf(it.fragment().charFormat()));
    }
  }
  return shown;
}

std::vector<Attributes> ExpectedAttributes(const TextSurface& text) {
  std::vector<Attributes> expected;
  for (Position i = 0; i < text.Length(); ++i) {
    if (text.Text()[static_cast<std::size_t>(i)] == kParagraphEnd) continue;
    expected.push_back(text.Doc().At(i));
    expected.back().colour = ShownColour(text.Doc().FormatAt(i));
    expected.back().offset = expected.back().offset > 0 ? 1 : 0;
  }
  return expected;
}

class Comparison {
 public:
  Comparison(const QMainWindow& window, const Form1& form) : window_(window), form_(form) {}

  std::string Differences() {
    Same(form_, "caption", FromQt(window_.windowTitle()), form_.Caption.Get());
    for (const Control* const control : form_.Controls()) {
      if (control->Kind() == Kind::kFileDialog) continue;
      if (control->Kind() == Kind::kMenuItem) {
        CompareMenuItem(*control);
      } else {
        CompareWidget(*control);
      }
    }
    if (QApplication::activeWindow() == &window_ && QApplication::activePopupWidget() == nullptr) {
      CompareFocus();
    }
    return differences_.str();
  }

 private:
  template <class T>
  void Same(const Control& control, const char* what, const T& shown, const T& held) {
    if (shown == held) return;
    std::ostream& line = differences_ << control.Name() << ", " << what << ": ";
    if constexpr (std::is_same_v<T, std::u32string>) {
      line << '"' << ToUtf8(shown) << "\" for \"" << ToUtf8(held) << "\"\n";
    } else {
      line << shown << " for " << held << '\n';
    }
  }

  void CompareMenuItem(const Control& item) {
    if (item.Row().text.empty()) return;  // only a space between the titles
    const auto& action = Find<QAction>(window_, item);
    Same(item, "caption", FromQt(action.text()), std::u32string(item.Row().text));
    Same(item, "enabled", action.isEnabled(), item.IsInReach());
  }

  void CompareWidget(const Control& control) {
    const auto& widget = Find<QWidget>(window_, control);
    Same(control, "visible", widget.isVisible(), IsShown(form_, control));
    Same(control, "enabled", widget.isEnabled(), IsEnabled(form_, control));
    Same(control, "accessible name", !widget.accessibleName().isEmpty(), true);
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
      CompareBox(*box, widget);
    } else if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
      CompareCombo(*combo);
    } else if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
      CompareList(*list);
    } else if (const auto* text = dynamic_cast<const TextSurface*>(&control)) {
      CompareText(*text);
    } else {
      Same(control, "caption", CaptionOf(widget), std::u32string(control.Row().text));
    }
  }

  static std::u32string CaptionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
      return FromQt(button->text());
    }
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) return FromQt(frame->title());
    return FromQt(dynamic_cast<const QLabel&>(widget).text());
  }

  void CompareBox(const TextBox& box, const QWidget& widget) {
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
      Same(box, "text", FromQt(line->text()), FromQt(ToQt(box.Text.Get())));
    } else {
      const auto& edit = Find<QPlainTextEdit>(window_, box);
      Same(box, "text", RawText(*edit.document()), ShownText(box.Text.Get()));
    }
    const auto colour = [&](QPalette::ColorRole role) {
      return FromQColor(widget.palette().color(QPalette::Active, role));
    };
    const auto plain = [](Colour held) { return FromQColor(ToQColor(held)); };
    Same(box, "background", colour(QPalette::Base), plain(box.BackColor));
    if (box.ForeColor != kWindowText || IsSystemColour(box.BackColor)) {
      Same(box, "colour", colour(QPalette::Text), plain(box.ForeColor));
    }
    Same(box, "bold", widget.font().bold(), box.FontBold.Get());
  }

  void CompareCombo(const ComboBox& combo) {
    const auto& widget = Find<QComboBox>(window_, combo);
    Same(combo, "text", FromQt(widget.currentText()), FromQt(ToQt(combo.Text.Get())));
    Same(combo, "rows", widget.count(), combo.ListCount());
    for (int row = 0; row < std::min(widget.count(), combo.ListCount()); ++row) {
      Same(combo, "row", FromQt(widget.itemText(row)), combo.List(row));
    }
  }

  void CompareList(const ListBox& list) {
    const auto& widget = Find<QAbstractItemView>(window_, list);
    const int rows = widget.model()->rowCount();
    Same(list, "rows", rows, list.ListCount());
    for (int row = 0; row < std::min(rows, list.ListCount()); ++row) {
      const std::u32string shown = FromQt(widget.model()->index(row, 0).data().toString());
      std::u32string held = FromQt(ToQt(list.List(row)));
      std::replace(held.begin(), held.end(), U'\n', U' ');
      Same(list, "row", shown, held);
    }
    const QModelIndexList selected = widget.selectionModel()->selectedIndexes();
    Same(list, "highlighted row", selected.empty() ? -1 : selected.front().row(),
         list.ListIndex.Get());
  }

  void CompareText(const TextSurface& text) {
    const auto& view = Find<QTextEdit>(window_, text);
    Same(text, "text", RawText(*view.document()), ExpectedText(text));
    const std::vector<Attributes> marks = ShownAttributes(*view.document());
    const std::vector<Attributes> held = ExpectedAttributes(text);
    const auto other = std::mismatch(marks.begin(), marks.end(), held.begin(), held.end()).first;
    Same(text, "characters with their marks", other - marks.begin(), std::ssize(held));
    const QTextCursor cursor = view.textCursor();
    const auto characters = [&](int begin, int end) {
      QTextCursor range(view.document());
      range.setPosition(begin);
      range.setPosition(end, QTextCursor::KeepAnchor);
      return static_cast<Position>(FromQt(range.selectedText()).size());
    };
    Same(text, "selected characters", characters(cursor.selectionStart(), cursor.selectionEnd()),
         text.SelLength.Get());
    // Where keys don't go, a caret is not shown.
    if (text.SelLength == 0 && !view.hasFocus()) return;
    Same(text, "selection", characters(0, cursor.selectionStart()), text.SelStart.Get());
  }

  // Keys go to the control that the model says, or to none.
  void CompareFocus() {
    // Until Esc or a choice the keys go to the menus.
    if (qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr) return;
    const Control* const held = form_.Focus();
    const Control* const shown = ControlOf(form_, QApplication::focusWidget());
    const auto name = [](const Control* control) {
      return control != nullptr ? control->Name() : std::string_view("nowhere");
    };
    // Before a user's first action the keyboard waits in the panel that is open.
    const bool mayBeNowhere = held == nullptr || !held->IsInReach();
    if (mayBeNowhere && (shown == nullptr || shown == &form_.UserID1)) return;
    Same(form_, "focus", name(shown), name(held));
  }

  const QMainWindow& window_;
  const Form1& form_;
  std::ostringstream differences_;
};

// Whether something stands out from the background inside the widget's edges.
bool Paints(QWidget& widget) {
  const QImage image = widget.grab(widget.rect().adjusted(5, 3, -5, -3)).toImage();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != image.pixel(0, 0)) return true;
    }
  }
  return false;
}

bool HasSomethingToShow(const Control& control) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    return !ToQt(box->Text.Get()).trimmed().isEmpty();
  }
  if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    return !ToQt(combo->Text.Get()).trimmed().isEmpty();
  }
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return list->ListCount() > 0;
  if (const auto* text = dynamic_cast<const TextSurface*>(&control)) {
    return !ToQt(text->Text()).trimmed().isEmpty();
  }
  return !control.Row().text.empty();
}

// The part of a widget that shows what it holds.
QWidget& PaintedPart(QWidget& widget) {
  if (auto* const combo = qobject_cast<QComboBox*>(&widget)) return *combo->lineEdit();
  if (auto* const area = qobject_cast<QAbstractScrollArea*>(&widget)) return *area->viewport();
  return widget;
}

}  // namespace

QWidget& WidgetOf(const QMainWindow& window, const Control& control) {
  return Find<QWidget>(window, control);
}

const Control* ControlOf(const Form1& form, const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    const Control* const control = form.Find(widget->objectName().toStdString());
    if (control != nullptr) return control;
  }
  return nullptr;
}

std::string Differences(QMainWindow& window, const Form1& form) {
  return Comparison(window, form).Differences();
}

void ExpectShown(QMainWindow& window, const Form1& form) {
  EXPECT_EQ(Differences(window, form), "");
  for (const Control* const control : form.Controls()) {
    if (control->Kind() == Kind::kMenuItem || control->Kind() == Kind::kFileDialog) continue;
    QWidget& widget = WidgetOf(window, *control);
    if (!widget.isVisible() || !HasSomethingToShow(*control)) continue;
    EXPECT_TRUE(Paints(PaintedPart(widget))) << control->Name();
  }
}

}  // namespace quill::test
