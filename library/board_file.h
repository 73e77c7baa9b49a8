// The text of a board file.
//
// One value a line, CR LF after each: 16 holdings (North's spades, hearts, diamonds, clubs, then
// East's, South's, West's), the number of calls, the calls, then 1 and the 20 values of the
// makeable table (rows North, South, East, West; columns clubs to no-trump), or 0. Numbers have a
// blank in the place of a plus sign. Latin-1; the board number is the file's name.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/board.h"

namespace tricklet {

/// Largest board file that is read; a full one takes under 2 KiB.
inline constexpr std::size_t kMaxBoardFileBytes = std::size_t{64} * 1024;

/// "007.txt" for board 7.
std::string BoardFileName(int boardNumber);

/// The board number of a board file's name, 0 when it is none: three digits and ".txt", on Windows
/// in any letter case.
int BoardNumberOfFile(std::string_view name);

std::string WriteBoardText(const Board& board);

enum class TableReading {
  Always,            ///< read the table line whenever it is there
  OnlyWhenComplete,  ///< only for a deal in which all four seats hold 13 cards
};

/// Reads hands, calls and table from `text` into `board`, and derives the contract. A line that is
/// no call takes the place of one, with its text. Lines may end in CR LF, LF or CR. A card that
/// stands in two hands stays in the last of them. False when the text is no board file; `board`
/// then keeps what had been read up to there.
bool ReadBoardText(std::string_view text, Board& board, TableReading tables);

}  // namespace tricklet
