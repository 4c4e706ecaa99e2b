#include "window/copies/abrupt_end.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace quill {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

// A signal handler may do little more than write to a pipe.
std::array<int, 2> pipeEnds = {-1, -1};
AbruptEnd* current = nullptr;

void NoteSignal(int signal) {
  const int reason = errno;
  const auto byte = static_cast<char>(signal);
  [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
  errno = reason;
}

// A signal that the parent process ignored stays ignored.
void Handle(int signal) {
  struct sigaction action = {};
  sigaction(signal, nullptr, &action);
  if (action.sa_handler == SIG_IGN) return;
  action.sa_handler = NoteSignal;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  sigaction(signal, &action, nullptr);
}

}  // namespace

AbruptEnd::AbruptEnd(std::function<void()> last) : last_(std::move(last)) {
  current = this;
  std::atexit(AtExit);
  if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(),
                   [this] { Arrived(); });
  for (const int signal : kSignals) Handle(signal);
}

AbruptEnd::~AbruptEnd() {
  current = nullptr;
  if (notifier_ == nullptr) return;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  notifier_.reset();
  for (const int end : pipeEnds) close(end);
}

void AbruptEnd::AtExit() {
  if (current != nullptr) current->last_();
}

void AbruptEnd::Arrived() const {
  char signal = 0;
  if (read(pipeEnds[0], &signal, 1) != 1) return;
  last_();
  std::raise(signal);
}

}  // namespace quill
