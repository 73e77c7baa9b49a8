// Which boards a library holds.
#pragma once

#include <filesystem>
#include <string>

#include "library/session.h"

namespace tricklet {

/// Boards that an empty library offers.
inline constexpr int kBoardsOfEmptyLibrary = 24;

/// Scans a library's folder, once; `maxBoard` is left at 0. A folder that cannot be listed holds no
/// boards.
LibraryState ScanLibrary(const std::filesystem::path& folder);

/// Scans the current library and leaves the number of boards that are offered as it is.
void CountHands(Session& session);

/// Scans the current library and sets the number of boards that are offered: up to its last one, or
/// `kBoardsOfEmptyLibrary`.
void FindFiles(Session& session);

/// "Library - NAME" and "N boards in library".
std::string LibraryCaption(const Session& session);
std::string LibraryCountText(const Session& session);

}  // namespace tricklet
