// What a list of found boards shows of each.
#pragma once

#include <array>
#include <string>

#include "finding/found_board.h"

namespace tricklet {

/// "4Sx S", "All Pass"; empty where there is no contract.
std::string FoundContractText(const FoundBoard& board);

/// "4S= NS +420", "All Pass 0"; empty where par is not known.
std::string FoundParText(const FoundBoard& board);

/// Of North-South and East-West: "22-18"; empty without a complete deal.
std::string FoundPointsText(const FoundBoard& board);

/// The lengths of the seat's suits, the longest first.
std::array<int, kSuits> FoundLengths(const FoundBoard& board, Seat seat);
/// The same as "5-4-3-1"; empty without a complete deal.
std::string FoundShapeText(const FoundBoard& board, Seat seat);

/// The first line of the note.
std::string FoundNoteText(const FoundBoard& board);

}  // namespace tricklet
