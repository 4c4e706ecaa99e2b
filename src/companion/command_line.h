// The command line: arguments to a command with its options, and its run.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace quill::companion {

// Runs the command that the arguments (without the program's name) ask for and returns the exit
// code of the program.
int RunCommandLine(std::vector<std::string> arguments, const std::string& version,
                   std::ostream& out, std::ostream& err);

}  // namespace quill::companion
