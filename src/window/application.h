// The toolkit's event loop with a guard around it: whatever the toolkit calls runs inside one of
// its events, and no failure leaves an event. After each mouse or key event the widget is read back
// from the model, because the toolkit may have changed it on its own.
#pragma once

#include <QApplication>
#include <functional>

namespace quill {

class Application final : public QApplication {
 public:
  using QApplication::QApplication;

  // The one application. There can be no window without it.
  static Application& Instance();

  // After each mouse or key event, once everything that it caused is done, `read` runs with the
  // widget that got the event. nullptr ends this.
  void AfterInput(std::function<void(const QWidget&)> read) { afterInput_ = std::move(read); }

  // From now on, mouse and key events for which `refuses` returns true reach no widget and move no
  // focus. nullptr ends this.
  void RefuseInput(std::function<bool(const QWidget&, const QEvent&)> refuses) {
    refuses_ = std::move(refuses);
  }

  // An exception is reported on standard error, and the event counts as handled.
  bool notify(QObject* receiver, QEvent* event) override;
  // How many events threw.
  int GivenUp() const { return givenUp_; }

 private:
  std::function<void(const QWidget&)> afterInput_;
  std::function<bool(const QWidget&, const QEvent&)> refuses_;
  int givenUp_ = 0;
};

}  // namespace quill
