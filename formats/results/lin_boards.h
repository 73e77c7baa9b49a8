// Boards of the LIN records that came with club results.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "formats/lin/lin_record.h"
#include "formats/results/lin_file.h"
#include "formats/sink/board_sink.h"

namespace tricklet {

/// The board that a LIN record names by "|Board N", else by its room; 0 when it names none.
int BoardNumberOfLin(std::string_view record);

/// How much a record tells of the deal, in ascending order.
enum class DealRank : std::uint8_t {
  None,      ///< nothing
  Any,       ///< a card occurs twice, or a hand has more than 13
  Possible,  ///< some hand has fewer than 13 cards, and none too many
  Complete
};
DealRank RankOf(const LinRecord& record);

/// The boards numbered `firstBoard` to `lastBoard` of which `data` has a deal, in ascending order:
/// each with the deal and the auction of its first record in which all four hands are complete, or
/// else in which the deal is possible. Auctions are read only if the first board's record has one.
/// Numbers that cannot be stored are passed over. What else is left out goes to `leftOut`: boards
/// without a possible deal, auctions of more than 100 calls or of a dealer who is not the board's.
std::vector<Board> BoardsOfLinData(const LinFile& data, int firstBoard, int lastBoard,
                                   LeftOut& leftOut);

/// Puts those boards into `sink`. All are read before the first is stored. `result` counts each as
/// it is stored, so it is right even when an exception of `sink` ends the reading.
void ReadLinCards(const LinFile& data, int firstBoard, int lastBoard, BoardSink& sink,
                  ReadResult& result);

}  // namespace tricklet
