// A hand on the real program: a plugin for the toolkit that marks the first word of the text that
// the program was started with, says so and, depending on QUILL_HAND, closes the window ("close")
// or has the toolkit end the process ("exit").
#include <QApplication>
#include <QGenericPlugin>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "hands/hands.h"

namespace {

using quill::Hands;

QMainWindow* WindowWithText() {
  for (QWidget* const widget : QApplication::topLevelWidgets()) {
    auto* const window = qobject_cast<QMainWindow*>(widget);
    if (window != nullptr && !Hands(*window).View().document()->isEmpty()) return window;
  }
  return nullptr;
}

void Mark(QMainWindow& window) {
  Hands hands(window);
  hands.Press("CloseIDFrame");
  hands.DragOver(0, 2);
  hands.Press("DefAMarker");
  std::puts("marked");
  std::fflush(stdout);
  const QByteArray next = qgetenv("QUILL_HAND");
  if (next == "close") window.close();
  if (next == "exit") std::exit(0);
}

// Until the text is loaded.
class Hand : public QObject {
 public:
  Hand() {
    timer_.callOnTimeout([this] {
      QMainWindow* const window = WindowWithText();
      if (window == nullptr) return;
      timer_.stop();
      Mark(*window);
    });
    timer_.start(10);
  }

 private:
  QTimer timer_;
};

}  // namespace

class HandPlugin : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hand.json")

 public:
  QObject* create(const QString& /*name*/, const QString& /*settings*/) override {
    return new Hand;
  }
};

#include "hand.moc"
