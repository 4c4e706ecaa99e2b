// play FILE: plays a scenario on the program without a window system.
//
// The exit status is 0 if everything was as expected, 1 if an expectation failed, and 2 if the
// scenario broke off or could not be read.
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "scenario/player.h"

namespace {

int Refuse(const std::string& message) {
  std::cerr << "play: " << message << '\n';
  return 2;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return Refuse("give one scenario to play: play FILE");
  const std::string name = argv[1];
  std::ifstream file(name, std::ios::binary);
  // A folder can be opened, but reading its first byte fails.
  file.peek();
  if (!file.is_open() || file.bad()) return Refuse(name + " cannot be read");
  const std::string scenario{std::istreambuf_iterator<char>(file), {}};
  return static_cast<int>(quill::scenario::PlayOnNewProgram(name, scenario, std::cout, std::cerr));
}
