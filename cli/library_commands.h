// The commands for whole libraries.
#pragma once

#include <filesystem>
#include <string>

#include "cli/context.h"

namespace tricklet::cli {

/// library copy: the current library under a new name.
ExitCode CopyLibraryAs(const Context& context, const std::string& name);
/// library export: the current library, or all of them, into a folder.
ExitCode ExportFolder(const Context& context, const std::filesystem::path& folder, bool all);
/// library import: a folder as a library, or every library that the folder holds.
ExitCode ImportFolder(const Context& context, const std::filesystem::path& folder, bool all);
/// library move: another folder becomes the root.
ExitCode MoveRoot(const Context& context, const std::filesystem::path& folder);
/// library delete: to the recycle bin.
ExitCode DeleteLibraryNamed(const Context& context, const std::string& name);

}  // namespace tricklet::cli
