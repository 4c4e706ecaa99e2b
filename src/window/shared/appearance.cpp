#include "window/shared/appearance.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <optional>

#include "window/shared/edges.h"

namespace quill {
namespace {

constexpr int kControlPixels = 11;
constexpr int kMenuPixels = 12;
constexpr int kSmallestPixels = 9;

// In percent: how far type is narrowed before it is made smaller.
constexpr int kStretches[] = {100, 97, 94, 91, 88};

const QColor kDesk(0xf0, 0xf1, 0xf3);
const QColor kDisabledText(0x84, 0x88, 0x8f);

QColor OfSystem(Colour number) {
  switch (number) {
    case kMenuBarColour:
      return kDesk;
    case kWindowBackground:
      return Qt::white;
    case kWindowText:
      return Qt::black;
    case kActiveBorder:
      return {0xe4, 0xe8, 0xee};
    case kInactiveBorder:
      return {0xe6, 0xec, 0xf4};
    case kLightEdge:
      return {0xe9, 0xee, 0xf3};
    case kToolTipBackground:
      return {0xff, 0xfc, 0xe8};
    default:
      return kDesk;
  }
}

// Relative luminance, for computing contrast.
double Luminance(const QColor& colour) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

QPalette LightPalette() {
  QPalette palette(QColor(0xfa, 0xfa, 0xfb), kDesk);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::BrightText, Qt::white);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xf6, 0xf7, 0xf9));
  palette.setColor(QPalette::ToolTipBase, OfSystem(kToolTipBackground));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb7));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x1a, 0x5f, 0xb4));
  palette.setColor(QPalette::LinkVisited, QColor(0x81, 0x3d, 0x9c));
  palette.setColor(QPalette::PlaceholderText, kDisabledText);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, kDisabledText);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xf4, 0xf5, 0xf6));
  return palette;
}

// The font, narrowed as far as needed to meet the condition; none if that is not enough.
template <class Condition>
std::optional<QFont> Narrowed(QFont font, const Condition& fits) {
  for (const int stretch : kStretches) {
    font.setStretch(stretch);
    if (fits(font)) return font;
  }
  return std::nullopt;
}

// The same, but made smaller if narrowing is not enough, while it stays legible.
template <class Condition>
QFont Fitted(QFont font, const Condition& fits) {
  for (int pixels = font.pixelSize(); pixels > kSmallestPixels; --pixels) {
    font.setPixelSize(pixels);
    if (const std::optional<QFont> narrowed = Narrowed(font, fits)) return *narrowed;
  }
  font.setPixelSize(kSmallestPixels);
  return Narrowed(font, fits).value_or(font);
}

}  // namespace

QColor ToQColor(Colour colour) {
  if (IsSystemColour(colour)) return OfSystem(colour);
  return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8U & 0xFF),
          static_cast<int>(colour >> 16U & 0xFF)};
}

Colour FromQColor(const QColor& colour) {
  return RGB(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
             static_cast<unsigned>(colour.blue()));
}

QColor TextOn(const QColor& background) {
  // Bold white stays legible down to about this contrast, and looks better on pure red.
  constexpr double kEnough = 3.9;
  const double contrastOfWhite = 1.05 / (Luminance(background) + 0.05);
  return contrastOfWhite >= kEnough ? Qt::white : Qt::black;
}

QColor BackgroundOf(const CatalogueRow& row) {
  const bool hasOwn = row.kind == Kind::kTextBox || row.kind == Kind::kComboBox ||
                      row.kind == Kind::kListBox || row.kind == Kind::kRichText;
  if (row.stored.backColor == kWindowBackground && !hasOwn) return kDesk;
  return ToQColor(row.stored.backColor);
}

void SetLook(QApplication& application) {
  // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns its style.
  QApplication::setStyle(new EdgeStyle);
  QApplication::setPalette(LightPalette());
  // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
  application.setStyleSheet(QString());
  QFont font = ControlFont(0, false);
  font.setPixelSize(kMenuPixels);
  QApplication::setFont(font);
}

QFont ControlFont(double points, bool bold) {
  constexpr double kPixelsPerPoint = 96.0 / 72.0;
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  const int pixels = points > 0 ? static_cast<int>(std::lround(points * kPixelsPerPoint)) : 0;
  font.setPixelSize(pixels > 0 ? pixels : kControlPixels);
  font.setBold(bold);
  return font;
}

bool Fits(const QFont& font, const QString& text, QSize room) {
  const QRect needed =
      QFontMetrics(font).boundingRect(QRect({0, 0}, room), Qt::AlignLeft | Qt::TextWordWrap, text);
  return needed.width() <= room.width() && needed.height() <= room.height();
}

QFont FittingFont(const QFont& font, const QString& text, QSize room) {
  return Fitted(font, [&](const QFont& tried) { return Fits(tried, text, room); });
}

QFont UnbrokenFont(const QFont& font, const QString& text, int width) {
  const QStringList lines = text.split(QLatin1Char('\n'));
  return Fitted(font, [&](const QFont& tried) {
    const QFontMetrics metrics(tried);
    return std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
      return metrics.horizontalAdvance(line.trimmed()) <= width;
    });
  });
}

Caption LayCaption(const QFont& font, const QString& text, const QRect& face) {
  const QRect wide = face.adjusted(5, 1, -5, -1);
  const auto fits = [&](const QFont& tried) { return Fits(tried, text, wide.size()); };
  if (const std::optional<QFont> narrowed = Narrowed(font, fits)) return {*narrowed, wide};
  // Better a narrow margin than small type.
  const QRect narrow = face.adjusted(2, 1, -2, -1);
  return {FittingFont(font, text, narrow.size()), narrow};
}

Caption LayTitle(QFont font, const QString& text, const QRect& panel) {
  constexpr int kHeight = 15;
  const QRect room(8, 1, panel.width() - 16, kHeight);
  font.setBold(true);
  return {FittingFont(font, text, room.size()), room};
}

void SetColours(QWidget& widget, const QColor& background, const QColor& text) {
  QPalette palette = widget.palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Base, background);
    palette.setColor(group, QPalette::Window, background);
    palette.setColor(group, QPalette::Text, text);
    palette.setColor(group, QPalette::WindowText, text);
  }
  widget.setPalette(palette);
}

}  // namespace quill
