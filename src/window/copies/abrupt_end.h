// Ends of the program that come from outside: SIGTERM, SIGHUP and SIGINT, and a display that goes
// away, whereupon the toolkit exits the process.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace quill {

// While it lives, a last piece of work is done before such an end, between two events. The signal
// then ends the process as it would have otherwise; a second one does so at once. Only one may
// exist at a time.
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
