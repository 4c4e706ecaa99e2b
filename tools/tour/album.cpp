#include "tour/album.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <stdexcept>
#include <unordered_map>

namespace quill::tour {
namespace {

// Its title bar is the desktop's, and lacks here: a line sets it off.
void DrawOver(QPixmap& picture, const QWidget& window, QWidget& dialog) {
  const QPixmap grabbed = dialog.grab();
  const QPoint place = dialog.mapToGlobal(QPoint()) - window.mapToGlobal(QPoint());
  QPainter painter(&picture);
  painter.drawPixmap(place, grabbed);
  painter.setPen(QColor(96, 96, 96));
  painter.drawRect(QRect(place, dialog.size()).adjusted(-1, -1, 0, 0));
}

// Colours that nobody tells apart become the one of them that there is most of: the colours of the
// marks stay what they are, the edges of letters have fewer shades, and half of the bytes will do.
QImage Reduced(QImage picture) {
  const auto group = [](QRgb colour) { return colour & 0xFFF0F0F0U; };
  std::unordered_map<QRgb, std::unordered_map<QRgb, int>> groups;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb colour = picture.pixel(x, y);
      ++groups[group(colour)][colour];
    }
  }
  std::unordered_map<QRgb, QRgb> most;
  for (const auto& [of, counts] : groups) {
    most[of] = std::max_element(counts.begin(), counts.end(), [](const auto& a, const auto& b) {
                 return a.second < b.second;
               })->first;
  }
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, most[group(picture.pixel(x, y))]);
    }
  }
  return picture;
}

}  // namespace

Album::Album(const QString& folder) : folder_(folder) {
  if (!folder_.mkpath(QStringLiteral("."))) {
    throw std::runtime_error("cannot make the folder " + folder.toStdString());
  }
}

void Album::Take(QWidget& window, const std::string& name, QWidget* dialog) {
  QApplication::processEvents();
  QPixmap picture = window.grab();
  if (dialog != nullptr) DrawOver(picture, window, *dialog);
  const QString file = QStringLiteral("%1-%2.png")
                           .arg(++taken_, 2, 10, QLatin1Char('0'))
                           .arg(QString::fromStdString(name));
  constexpr int kSmallest = 0;
  if (!Reduced(picture.toImage()).save(folder_.filePath(file), "PNG", kSmallest)) {
    throw std::runtime_error("cannot write " + folder_.filePath(file).toStdString());
  }
}

}  // namespace quill::tour
