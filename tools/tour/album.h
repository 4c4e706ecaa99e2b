// The pictures of a tour.
#pragma once

#include <QDir>
#include <QWidget>
#include <string>

namespace quill::tour {

class Album {
 public:
  // Pictures go to the folder, which is created if it is missing.
  explicit Album(const QString& folder);

  // Saves the window, with the dialog over it, as NUMBER-NAME.png, numbered from 01. Throws
  // std::runtime_error if the file cannot be written.
  void Take(QWidget& window, const std::string& name, QWidget* dialog = nullptr);

 private:
  QDir folder_;
  int taken_ = 0;
};

}  // namespace quill::tour
