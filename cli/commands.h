// The commands of the command line, each over the engine's own procedures.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "formats/import.h"
#include "library/session.h"

namespace tricklet::cli {

/// What every command has: the program's state and where data goes.
struct Context {
  Session& session;
  std::ostream& data;
};

/// An import of one file into the current library: `ImportFile`, `ImportLinFile`.
using Importer = ImportOutcome (*)(Session&, const std::filesystem::path&);

enum class ExitCode : int { Done = 0, Refused = 1, Usage = 2 };

/// The library root must be there; else says so and is false.
bool RootExists(const Context& context);

/// The current library must be there; else says so and is false. `create` makes it instead.
bool OpenLibrary(const Context& context, bool create);

/// Opens the library and loads the board; false, with a message, when there is none or it cannot be
/// read.
bool LoadBoard(const Context& context, int boardNumber);

ExitCode Libraries(const Context& context);
ExitCode Boards(const Context& context, bool longForm);
ExitCode Show(const Context& context, int boardNumber);
/// Ends early when `ended` says that the program is to end.
ExitCode ImportFiles(const Context& context, Importer import,
                     const std::vector<std::filesystem::path>& files,
                     const std::function<bool()>& ended);
ExitCode ExportBoards(const Context& context, const std::string& first, const std::string& last,
                      const std::filesystem::path& file);
/// Without a key: lists; without a value: reads; else writes.
ExitCode SettingsCommand(const Context& context, const std::string& key,
                         const std::optional<std::string>& value);

}  // namespace tricklet::cli
