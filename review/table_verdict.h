// What a table's result is against what the deal makes, by the rules of session_report.h.
#pragma once

#include <optional>
#include <string>

#include "analysis/par.h"
#include "core/board.h"
#include "formats/results/traveller.h"
#include "review/session_report.h"

namespace tricklet {

/// The row's deal is not known to be another one than that of `board`.
bool IsSameDeal(const TravellerRow& row, const Board& board);

/// The contract of a traveller's row and its declarer, as a board without hands; nothing where it
/// is not known. A board that was passed out has the level 0.
std::optional<Board> PlayedContract(const std::string& contract, std::optional<Seat> declarer,
                                    int boardNumber);
std::optional<Board> PlayedContract(const ReportTable& table);

/// What `row`, number `index` of its traveller, tells by itself, and, where `board` is the
/// library's board with its table, how it compares with `par`. Entrants and play are left to the
/// caller.
ReportTable JudgeTable(const TravellerRow& row, std::size_t index, int boardNumber,
                       const Board* board, const std::optional<Par>& par);

}  // namespace tricklet
