// Captions: each shows whole on its widget, in the font that it is painted with.
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>

#include "window/appearance.h"
#include "window/shown.h"
#include "window/user.h"

namespace quill::test {
namespace {

void ExpectWhole(const QAbstractButton& button, const Control& control) {
  QFont font = button.font();
  font.setBold(control.Row().stored.showsBackColor);
  const QString text = button.text().simplified();
  const Caption laid = LayCaption(font, text, button.rect());
  EXPECT_TRUE(Fits(laid.font, text, laid.room.size()))
      << control.Name() << ": " << text.toStdString();
}

void ExpectWhole(const QGroupBox& panel, const Control& control) {
  const QString text = panel.title().simplified();
  const Caption laid = LayTitle(panel.font(), text, panel.rect());
  EXPECT_TRUE(Fits(laid.font, text, laid.room.size()))
      << control.Name() << ": " << text.toStdString();
}

TEST_F(WindowTest, ShowsEveryCaptionWhole) {
  int seen = 0;
  for (const Control* const control : form.Controls()) {
    const auto kind = control->Kind();
    if (kind != Kind::kButton && kind != Kind::kLabel && kind != Kind::kFrame) continue;
    ++seen;
    const QWidget& widget = Widget(std::string(control->Name()).c_str());
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget)) {
      ExpectWhole(*button, *control);
    } else if (const auto* const panel = qobject_cast<const QGroupBox*>(&widget)) {
      ExpectWhole(*panel, *control);
    } else if (const auto* const label = qobject_cast<const QLabel*>(&widget)) {
      EXPECT_TRUE(Fits(label->font(), label->text(), label->size()))
          << control->Name() << ": " << label->text().toStdString();
    }
  }
  EXPECT_GT(seen, 35);
}

}  // namespace
}  // namespace quill::test
