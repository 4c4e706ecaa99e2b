// The toolkit's event loop with a guard around it: whatever the toolkit calls runs inside one of
// its events, and no failure leaves an event. After each event of mouse or keys the window is read
// back, for what the toolkit did to a widget by itself.
#pragma once

#include <QApplication>
#include <functional>

namespace quill {

class Application final : public QApplication {
 public:
  using QApplication::QApplication;

  // The one application; a program without it cannot have a window.
  static Application& Instance();

  // `read` runs with the widget that got an event of mouse or keys, when all that came of the event
  // is done. nullptr ends it.
  void AfterInput(std::function<void(const QWidget&)> read) { afterInput_ = std::move(read); }

  // From now on, events of mouse and keys for which it says so reach no widget and move no focus.
  // nullptr ends it.
  void RefuseInput(std::function<bool(const QWidget&, const QEvent&)> refuses) {
    refuses_ = std::move(refuses);
  }

  // What throws is told on standard error, and counts as an event that was taken.
  bool notify(QObject* receiver, QEvent* event) override;
  // How many events threw.
  int GivenUp() const { return givenUp_; }

 private:
  std::function<void(const QWidget&)> afterInput_;
  std::function<bool(const QWidget&, const QEvent&)> refuses_;
  int givenUp_ = 0;
};

}  // namespace quill
