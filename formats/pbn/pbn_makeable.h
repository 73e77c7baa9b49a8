// The double-dummy tables of a PBN game.
#pragma once

#include <vector>

#include "formats/contents/contents.h"
#include "formats/pbn/pbn_games.h"

namespace tricklet {

/// Reads `OptimumResultTable` and `DoubleDummyTricks`; where both give a table the later one
/// counts. A table that has not one row for each declarer and strain is noted as
/// `DealTrouble::OddTable` and does not count; nor does one with an impossible number of tricks, or
/// with 0 in its last row, as writers have it that know no table. Rows and values that cannot be
/// read are added to `unread`.
void ReadPbnMakeable(const PbnGame& game, FoundGame& found, std::vector<UnreadPart>& unread);

}  // namespace tricklet
