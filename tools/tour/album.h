// The pictures of a tour.
#pragma once

#include <QDir>
#include <QWidget>
#include <string>

namespace quill::tour {

class Album {
 public:
  // Pictures go to the folder, which is made where it is missing.
  explicit Album(const QString& folder);

  // The window, and the dialog that stands over it, as NUMBER-NAME.png; they are numbered from 01.
  // Throws std::runtime_error where that can't be written.
  void Take(QWidget& window, const std::string& name, QWidget* dialog = nullptr);

 private:
  QDir folder_;
  int taken_ = 0;
};

}  // namespace quill::tour
