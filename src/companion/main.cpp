#include <fcntl.h>

#include <csignal>
#include <exception>
#include <iostream>

#include "companion/command_line.h"

namespace {

// A file opened later must not take the number of a stream that the caller closed: such a stream is
// opened here in a way that makes every use of it fail.
void HoldClosedStreams() {
  for (int stream = 0; stream <= 2; ++stream) {
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
  }
}

}  // namespace

int main(int argc, char** argv) try {
  HoldClosedStreams();
  // A closed pipe or a limit on file sizes then makes a write fail, with a message.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  return quill::companion::RunCommandLine({argv + 1, argv + argc}, QUILL_VERSION, std::cout,
                                          std::cerr);
} catch (const std::exception& error) {
  std::cerr << "quilltags: " << error.what() << '\n';
  return 2;
}
