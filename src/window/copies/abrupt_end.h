// The ends of the program that come from outside: SIGTERM, SIGHUP and SIGINT, and a display that
// goes away, upon which the toolkit leaves the process.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace quill {

// While it lives, such an end comes after a last piece of work, done between two events. A signal
// then ends the process as it would have; the same signal once more does so at once. One at a time.
class AbruptEnd {
 public:
  explicit AbruptEnd(std::function<void()> last);
  ~AbruptEnd();
  AbruptEnd(const AbruptEnd&) = delete;
  AbruptEnd& operator=(const AbruptEnd&) = delete;

 private:
  static void AtExit();
  void Arrived() const;

  std::function<void()> last_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quill
