// The command line: turns arguments into a command with its options, and runs it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace quill::companion {

// Runs the command that the arguments (without the program's name) ask for. Returns the program's
// exit code.
int RunCommandLine(std::vector<std::string> arguments, const std::string& version,
                   std::ostream& out, std::ostream& err);

}  // namespace quill::companion
