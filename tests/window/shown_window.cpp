#include "shown_window.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextEdit>

#include "window/appearance.h"
#include "window/shown.h"

namespace quill::test {
namespace {

template <class W>
W& Find(QMainWindow& window, const Control& control) {
  W* const widget = window.findChild<W*>(QString::fromStdString(std::string(control.Name())));
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

void ExpectPainted(QWidget& widget, const QString& text) {
  if (widget.isVisible() && !text.trimmed().isEmpty()) {
    EXPECT_TRUE(Paints(widget));
  }
}

void ExpectBox(QMainWindow& window, const TextBox& box) {
  auto& widget = Find<QWidget>(window, box);
  const QString text = ToQt(box.Text.Get());
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    EXPECT_EQ(line->text().toStdString(), text.toStdString());
  } else {
    auto& edit = Find<QPlainTextEdit>(window, box);
    EXPECT_EQ(RawText(*edit.document()), ShownText(box.Text.Get()));
  }
  const QPalette palette = widget.palette();
  EXPECT_EQ(palette.color(QPalette::Active, QPalette::Base), ToQColor(box.BackColor));
  if (box.ForeColor != kWindowText || IsSystemColour(box.BackColor)) {
    EXPECT_EQ(palette.color(QPalette::Active, QPalette::Text), ToQColor(box.ForeColor));
  }
  EXPECT_EQ(widget.font().bold(), box.FontBold.Get());
  ExpectPainted(widget, text);
}

void ExpectCombo(QMainWindow& window, const ComboBox& combo) {
  auto& widget = Find<QComboBox>(window, combo);
  EXPECT_EQ(FromQt(widget.currentText()), combo.Text.Get());
  ASSERT_EQ(widget.count(), combo.ListCount());
  for (int row = 0; row < combo.ListCount(); ++row) {
    EXPECT_EQ(FromQt(widget.itemText(row)), combo.List(row));
  }
  ExpectPainted(*widget.lineEdit(), widget.currentText());
}

void ExpectList(QMainWindow& window, const ListBox& list) {
  auto& widget = Find<QAbstractItemView>(window, list);
  ASSERT_EQ(widget.model()->rowCount(), list.ListCount());
  for (int row = 0; row < list.ListCount(); ++row) {
    EXPECT_EQ(FromQt(widget.model()->index(row, 0).data().toString()), list.List(row));
  }
  const QModelIndexList selected = widget.selectionModel()->selectedIndexes();
  EXPECT_EQ(selected.empty() ? -1 : selected.front().row(), list.ListIndex.Get());
  ExpectPainted(*widget.viewport(), list.ListCount() > 0 ? QStringLiteral("rows") : QString());
}

// The attributes that the widget shows for each character, paragraph ends left out.
std::vector<std::pair<char32_t, Attributes>> ShownAttributes(const QTextDocument& document) {
  std::vector<std::pair<char32_t, Attributes>> shown;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto it = block.begin(); !it.atEnd(); ++it) {
      const QTextCharFormat style = it.fragment().charFormat();
      const Attributes attributes{FromQColor(style.foreground().color()),
                                  style.fontWeight() == QFont::Bold, style.fontUnderline(),
                                  style.baselineOffset() > 0 ? 1 : 0};
      for (const char32_t c : FromQt(it.fragment().text())) shown.emplace_back(c, attributes);
    }
  }
  return shown;
}

void ExpectText(QMainWindow& window, const TextSurface& text) {
  auto& view = Find<QTextEdit>(window, text);
  std::u32string expectedText;
  for (Position i = 0; i < text.Length(); ++i) {
    const FontFace& face = text.Doc().Fonts()[text.Doc().FormatAt(i).look.font];
    expectedText += ShownInText(text.Text().substr(static_cast<std::size_t>(i), 1), face.name);
  }
  EXPECT_EQ(RawText(*view.document()), expectedText);
  const auto shown = ShownAttributes(*view.document());
  std::size_t at = 0;
  for (Position i = 0; i < text.Length() && !testing::Test::HasFailure(); ++i) {
    if (text.Text()[static_cast<std::size_t>(i)] == U'\n') continue;
    ASSERT_LT(at, shown.size());
    Attributes expected = text.Doc().At(i);
    expected.offset = expected.offset > 0 ? 1 : 0;
    EXPECT_EQ(shown[at].second, expected) << "at " << i;
    ++at;
  }
  ExpectPainted(*view.viewport(), ToQt(text.Text()));
  const QTextCursor cursor = view.textCursor();
  EXPECT_EQ(FromQt(cursor.selectedText()).size(), static_cast<std::size_t>(text.SelLength.Get()));
  QTextCursor before(view.document());
  before.setPosition(cursor.selectionStart(), QTextCursor::KeepAnchor);
  // Where keys don't go, a caret is not shown.
  if (text.SelLength == 0 && !view.hasFocus()) return;
  EXPECT_EQ(FromQt(before.selectedText()).size(), static_cast<std::size_t>(text.SelStart.Get()));
}

void ExpectMenuItem(QMainWindow& window, const MenuItem& item) {
  if (item.Row().text.empty()) return;  // only a space between the titles
  auto& action = Find<QAction>(window, item);
  EXPECT_EQ(FromQt(action.text()), item.Row().text);
  EXPECT_EQ(action.isEnabled(), item.IsInReach());
}

void ExpectCaption(QMainWindow& window, const Control& control) {
  const QString caption = ToQt(control.Row().text);
  auto& widget = Find<QWidget>(window, control);
  if (auto* button = qobject_cast<QPushButton*>(&widget)) {
    EXPECT_EQ(button->text(), caption);
  } else if (auto* frame = qobject_cast<QGroupBox*>(&widget)) {
    EXPECT_EQ(frame->title(), caption);
  } else {
    EXPECT_EQ(Find<QLabel>(window, control).text(), caption);
  }
  ExpectPainted(widget, caption);
}

void ExpectWidget(QMainWindow& window, const Form1& form, const Control& control) {
  auto& widget = Find<QWidget>(window, control);
  EXPECT_EQ(widget.isVisible(), IsShown(form, control));
  EXPECT_EQ(widget.isEnabled(), IsEnabled(form, control));
  EXPECT_FALSE(widget.accessibleName().isEmpty());
  EXPECT_EQ(FromQt(widget.toolTip()), control.Row().stored.toolTip);
}

}  // namespace

void ExpectShown(QMainWindow& window, const Form1& form) {
  EXPECT_EQ(FromQt(window.windowTitle()), form.Caption.Get());
  for (const Control* const control : form.Controls()) {
    SCOPED_TRACE(std::string(control->Name()));
    if (control->Kind() == Kind::kFileDialog) continue;
    if (control->Kind() == Kind::kMenuItem) {
      ExpectMenuItem(window, static_cast<const MenuItem&>(*control));
      continue;
    }
    ExpectWidget(window, form, *control);
    if (const auto* box = dynamic_cast<const TextBox*>(control)) {
      ExpectBox(window, *box);
    } else if (const auto* combo = dynamic_cast<const ComboBox*>(control)) {
      ExpectCombo(window, *combo);
    } else if (const auto* list = dynamic_cast<const ListBox*>(control)) {
      ExpectList(window, *list);
    } else if (const auto* text = dynamic_cast<const TextSurface*>(control)) {
      ExpectText(window, *text);
    } else {
      ExpectCaption(window, *control);
    }
  }
}

}  // namespace quill::test
