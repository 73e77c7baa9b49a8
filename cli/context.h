// What the commands of the command line share: the program's state, their exit codes, and opening
// what they work on.
#pragma once

#include <iosfwd>

#include "library/session.h"

namespace tricklet::cli {

/// What every command has: the program's state and where data goes.
struct Context {
  Session& session;
  std::ostream& data;
  bool rootNamed = false;  ///< the root was named for this call, and may be a new folder
};

enum class ExitCode : int { Done = 0, Refused = 1, Usage = 2 };

/// The library root exists and is not a drive; tells why not when this is false.
bool RootExists(const Context& context);

/// The current library exists; tells when it does not. `create` makes it when it is missing, and a
/// root that was named for this call.
bool OpenLibrary(const Context& context, bool create);

/// Opens the library and loads the board; false, with a message, when there is none or it cannot be
/// read.
bool LoadBoard(const Context& context, int boardNumber);

}  // namespace tricklet::cli
