#include "tour/album.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <utility>
#include <vector>

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

// The 256 colours that it has most of: a window has few, but for the edges of its letters, and a
// third of the bytes will do.
QImage Reduced(const QImage& picture) {
  std::unordered_map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  std::vector<std::pair<int, QRgb>> colours;
  for (const auto& [colour, count] : counts) colours.emplace_back(count, colour);
  std::sort(colours.rbegin(), colours.rend());
  QList<QRgb> table;
  for (const auto& [count, colour] : colours) {
    if (table.size() < 256) table += colour;
  }
  return picture.convertToFormat(QImage::Format_Indexed8, table,
                                 Qt::ThresholdDither | Qt::AvoidDither);
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
