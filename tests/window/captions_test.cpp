// Captions and edges: each shows completely at every scale.
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <array>

#include "window/shared/appearance.h"
#include "window/shared/shown.h"
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

TEST_F(WindowTest, ShowsEveryLineOfTheWelcomeWhole) {
  Choose("mnuDialogue_on");
  const auto& guidance = dynamic_cast<QPlainTextEdit&>(Widget("User_Dialogue"));
  const QTextDocument& text = *guidance.document();
  EXPECT_GT(text.blockCount(), 10);
  for (QTextBlock line = text.begin(); line.isValid(); line = line.next()) {
    const QString words = line.text().trimmed();
    if (words.isEmpty()) continue;
    EXPECT_GE(line.layout()->lineAt(0).textLength(), words.size()) << words.toStdString();
  }
}

// The sides of a rectangle of the window, each by a point that lies on it near a corner.
struct Side {
  const char* name;
  QPointF point;
  QPointF across;
};

std::array<Side, 4> SidesOf(const QRectF& place) {
  constexpr double kInside = 4;
  const QPointF first = place.topLeft() + QPointF(kInside, kInside);
  const QPointF last = place.bottomRight() - QPointF(kInside, kInside);
  return {{{"left", {place.left(), first.y()}, {1, 0}},
           {"top", {first.x(), place.top()}, {0, 1}},
           {"right", {place.right() - 1, last.y()}, {1, 0}},
           {"bottom", {last.x(), place.bottom() - 1}, {0, 1}}}};
}

// Whether the edge is painted where it belongs, give or take a point of the screen.
bool IsPainted(const QImage& image, const Side& side, QRgb colour) {
  const double scale = image.devicePixelRatio();
  for (double away = -1; away <= 2; ++away) {
    const QPointF at = side.point * scale + side.across * away;
    if (image.pixel(static_cast<int>(at.x()), static_cast<int>(at.y())) == colour) return true;
  }
  return false;
}

TEST_F(WindowTest, DrawsEverySideOfThePanels) {
  OpenText("text");
  const QImage image = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
  for (const char* const name : {"PreFrame", "Frame1", "Frame2", "Frame3", "Frame4", "Frame5"}) {
    const QWidget& panel = Widget(name);
    const QRgb colour = BackgroundOf(RowOf(name)).darker(118).rgb();
    const QRectF place(panel.mapTo(&window, QPoint(0, 0)), panel.size());
    for (const Side& side : SidesOf(place)) {
      EXPECT_TRUE(IsPainted(image, side, colour)) << name << ", " << side.name;
    }
  }
}

}  // namespace
}  // namespace quill::test
