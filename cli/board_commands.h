// The commands for the boards of a library, for files of boards and for settings, each over the
// engine's own procedures.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "cli/context.h"
#include "formats/exchange/import.h"

namespace tricklet::cli {

/// An import of one file into the current library: `ImportFile`, `ImportLinFile`.
using Importer = ImportOutcome (*)(Session&, const std::filesystem::path&);

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
