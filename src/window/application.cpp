#include "window/application.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <cstdio>
#include <exception>

namespace quill {
namespace {

bool IsInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::Shortcut:
      return true;
    default:
      return false;
  }
}

}  // namespace

Application& Application::Instance() { return dynamic_cast<Application&>(*instance()); }

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    if (!IsInput(*event)) return QApplication::notify(receiver, event);
    // The event may destroy its receiver.
    const QPointer<QWidget> widget = qobject_cast<QWidget*>(receiver);
    if (widget != nullptr && refuses_ && refuses_(*widget, *event)) return true;
    const bool taken = QApplication::notify(receiver, event);
    if (widget != nullptr && afterInput_) afterInput_(*widget);
    return taken;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "quillorandix: an event was given up: %s\n", fault.what());
  } catch (...) {
    std::fprintf(stderr, "quillorandix: an event was given up\n");
  }
  ++givenUp_;
  return true;
}

}  // namespace quill
