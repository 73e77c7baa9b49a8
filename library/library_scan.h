// Which boards a library holds.
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "library/session.h"

namespace tricklet {

/// Boards that an empty library offers.
inline constexpr int kBoardsOfEmptyLibrary = 24;

/// Scans a library's folder, once. `maxBoard` is up to its last board, or `kBoardsOfEmptyLibrary`.
/// Throws `Fault` when it cannot be listed; one that is not there holds no boards.
LibraryState ScanLibrary(const std::filesystem::path& folder);

/// The boards of `first` to `last`, both 1..999, that the library has.
std::set<int> BoardsIn(const LibraryState& library, int first = kFirstBoardNumber,
                       int last = kLastBoardNumber);

/// Scans the current library and leaves the number of boards that are offered as it is. Throws
/// `Fault`, and then all is as it was.
void CountHands(Session& session);

/// Scans the current library and offers at least as many boards as before. True when its boards, or
/// how many are offered, are others than before. Throws `Fault`, and then all is as it was.
bool ListAddedBoards(Session& session);

/// Scans the current library and offers as many boards as `ScanLibrary` says. Throws `Fault`, and
/// then all is as it was.
void FindFiles(Session& session);

/// "Library - NAME" and "N boards in library".
std::string LibraryCaption(const Session& session);
std::string LibraryCountText(const Session& session);

}  // namespace tricklet
