// The console that the command line runs in.
#pragma once

#include <string>
#include <vector>

namespace tricklet::platform {

/// Makes the console take UTF-8 and returns the arguments (without the program's name) as UTF-8.
std::vector<std::string> PrepareConsole(int argc, char** argv);

/// Standard input and standard error are both a terminal: questions can be asked there.
bool IsTerminal();

}  // namespace tricklet::platform
