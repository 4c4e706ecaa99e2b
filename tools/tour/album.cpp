#include "tour/album.h"

#include <QApplication>
#include <QPainter>
#include <stdexcept>

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
  if (!picture.save(folder_.filePath(file), "PNG", kSmallest)) {
    throw std::runtime_error("cannot write " + folder_.filePath(file).toStdString());
  }
}

}  // namespace quill::tour
