// Boards of the current library as their files have them, with their makeable tables.
#pragma once

#include <string>
#include <vector>

#include "core/board.h"
#include "library/session.h"

namespace tricklet {

struct StoredBoard {
  Board board;
  bool complete = false;  ///< four hands of thirteen cards
};

/// Complete, and without a table.
bool LacksTable(const StoredBoard& stored);

/// Reads board `number` of the current library; one whose file is broken as far as it can be read.
/// Throws `Fault` when the disk does not give it.
StoredBoard ReadStoredBoard(const Session& session, int number);

/// Gives tables to those that lack one, with progress: each is stored where its file may be
/// written, else it is in the answer alone. `boards` are in the order of their numbers. False when
/// the person has cancelled. Why some are still missing comes in `failure`, else empty. Throws
/// `Fault`.
bool SupplyTables(Session& session, const std::vector<StoredBoard*>& boards, std::string& failure);

}  // namespace tricklet
