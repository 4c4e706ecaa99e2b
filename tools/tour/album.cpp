#include "tour/album.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace quill::tour {
namespace {

// The desktop's title bar is missing here, so a line sets the dialog off.
void DrawOver(QPixmap& picture, const QWidget& window, QWidget& dialog) {
  const QPixmap grabbed = dialog.grab();
  const QPoint place = dialog.mapToGlobal(QPoint()) - window.mapToGlobal(QPoint());
  QPainter painter(&picture);
  painter.drawPixmap(place, grabbed);
  painter.setPen(QColor(96, 96, 96));
  painter.drawRect(QRect(place, dialog.size()).adjusted(-1, -1, 0, 0));
}

// The colours of a picture, the most frequent first.
std::vector<QRgb> Colours(const QImage& picture) {
  std::unordered_map<QRgb, int> counts;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) ++counts[picture.pixel(x, y)];
  }
  std::vector<QRgb> colours;
  colours.reserve(counts.size());
  for (const auto& [colour, count] : counts) colours.push_back(colour);
  std::sort(colours.begin(), colours.end(),
            [&](QRgb a, QRgb b) { return std::pair(counts[a], a) > std::pair(counts[b], b); });
  return colours;
}

// In 256 colours, for a third of the bytes: apart from the edges of its letters, a window has few.
// First come colours that differ clearly, so that the few pixels of a mark keep theirs, then the
// most frequent of the others.
QImage Reduced(const QImage& picture) {
  const std::vector<QRgb> colours = Colours(picture);
  std::unordered_set<QRgb> kinds;
  QList<QRgb> table;
  for (const QRgb colour : colours) {
    if (kinds.insert(colour & 0xE0E0E0U).second) table += colour;
  }
  for (const QRgb colour : colours) {
    if (table.size() < 256 && !table.contains(colour)) table += colour;
  }
  table.resize(std::min<qsizetype>(table.size(), 256));
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
