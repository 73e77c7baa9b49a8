// The only way that boards reach or leave the disk.
#pragma once

#include <filesystem>
#include <string>

#include "library/library_write.h"
#include "library/session.h"

namespace tricklet {

/// The message that the file is marked read-only, so that its board cannot be saved.
std::string ReadOnlyText(const std::filesystem::path& path);

/// Writes the current board to its file in the current library. Asks before a changed board
/// replaces an existing file, and before any board replaces what another program has stored since
/// this one was read or stored; refuses to replace a file that is marked read-only. True when it
/// was written; a failure is reported and leaves the old file and the unsaved flag.
bool SaveHand(Session& session, Buttons style = Buttons::YesNo);

/// Stores the current board in a run (import, generation): no question, no rescan of the library.
/// Throws `Fault`: PathFileAccess with `ReadOnlyText` when the file is marked read-only,
/// SubscriptOutOfRange when no library can hold a board of that number, or the number of the disk's
/// own failure. The old file is then as it was.
void StoreBoard(Session& session, LibraryWrite& write);

/// Reads the current board from its file. Without a file the board is cleared and its number stays;
/// a file that cannot be read gives a message, and the board keeps what had been read. A missing
/// table is computed as `LoadHandBasic` does it. True when the board was read.
bool LoadHand(Session& session);

/// The board is complete, lacks its table, and the settings and a solver call for one.
bool WantsTable(const Session& session, const Board& board);

/// Reads the board under its number as it is stored; false, with a message, when the file cannot be
/// read. The table is read only for a complete deal.
bool ReadBoard(Session& session, Board& board);

/// `ReadBoard` for a writer: a missing table of a complete deal is computed, where the settings and
/// a solver call for one, and stored, unless the file is marked read-only. `allHandsComplete` says
/// whether all four hands are complete. Throws `Fault` when the disk does not give the file.
bool LoadHandBasic(Session& session, Board& board, bool& allHandsComplete);

}  // namespace tricklet
