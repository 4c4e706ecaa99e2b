#include <fcntl.h>

#include <csignal>
#include <exception>
#include <iostream>

#include "companion/command_line.h"

namespace {

// A stream that the caller closed must not become a file that is opened here: it is opened in a way
// that every use of it fails.
void HoldClosedStreams() {
  for (int stream = 0; stream <= 2; ++stream) {
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", stream == 0 ? O_WRONLY : O_RDONLY);
  }
}

}  // namespace

int main(int argc, char** argv) try {
  HoldClosedStreams();
  // A pipe that is closed, or a limit on the size of files, makes a write fail, which is told.
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGXFSZ, SIG_IGN);
  std::ios::sync_with_stdio(false);
  return quill::companion::RunCommandLine({argv + 1, argv + argc}, QUILL_VERSION, std::cout,
                                          std::cerr);
} catch (const std::exception& error) {
  std::cerr << "quilltags: " << error.what() << '\n';
  return 2;
}
