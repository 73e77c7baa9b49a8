// The traveller of a board: what happened at each table, from the records of "LIN.txt".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/notation.h"
#include "core/recorded_play.h"
#include "formats/results/lin_file.h"

namespace tricklet {

inline constexpr const char* kNotPlayed = "Not played";

/// One table. What the file does not give is worked out from the record as far as that tells it;
/// but not contract and tricks when the score is a ruling, since the play did not decide it.
struct TravellerRow {
  PerSide<std::string> pair;     ///< numbers as in the file; empty where the players have none
  std::string contract;          ///< "4Sx", "All Pass"; empty where there is none
  std::optional<Seat> declarer;  ///< of a contract
  std::optional<Card> lead;
  std::optional<int> tricks;  ///< of the declarer, 0..13
  std::optional<int> score;   ///< from North-South's point of view
  std::string adjusted;       ///< the score's text where it is a ruling: "A5050"
  /// Match points or IMPs, as the traveller's `scoring` says.
  PerSide<std::optional<float>> points;
  PerSide<std::string> names;    ///< "Ann & Bob": North and South, East and West
  PerSeat<std::string> players;  ///< the same one by one; empty where not known
  RecordedPlay record;
  std::string lin;  ///< the LIN record itself, without the scorer's own tags

  /// There is a score or a ruling.
  bool HasResult() const { return score || !adjusted.empty(); }
  /// What stands in the place of the contract: `kNotPlayed` where there is no result either,
  /// nothing where there is one.
  std::string ContractText() const;
  /// The declarer's tricks over or under the contract.
  std::optional<int> Result() const;
  /// "Ann & Bob v Cy & Di".
  std::string NamesText() const;
};

struct Traveller {
  int boardNumber = 0;
  std::string scoring;             ///< heading of the points: "MP", "IMP", "XIMP", "BIMP"
  bool computed = false;           ///< the file gives no points, and they follow from the scores
  std::vector<TravellerRow> rows;  ///< in the order of the file
};

/// Most rows of a traveller; further records of the board are left out. The largest simultaneous
/// events have some thousand tables, and a grid of more could not be looked through.
inline constexpr std::size_t kMaxTravellerRows = 10'000;

/// The row of one record of `boardNumber` by itself: without numbers of pairs and without points.
TravellerRow MakeTravellerRow(const std::string& record, int boardNumber);

/// The traveller of `boardNumber`; without rows where the file has no record of the board.
///
/// Where all points of the board are 0 or missing they are computed when there are at least two
/// scores: match points, of which a ruling gets its percentage, or IMPs against every other table,
/// where a ruling gets none. In a match of teams only two tables can
/// be compared, as the file does not say which of more belong together.
Traveller MakeTraveller(const LinFile& file, int boardNumber);

/// Those of all boards, 1..999, of which the file has records, in the order of their numbers.
std::vector<Traveller> MakeTravellers(const LinFile& file);

/// The LIN record of `row`, or of the first row with a play when `row` is -1. Rows of another deal
/// than that of `board` do not count; empty when none is left.
std::string LinPlayRecord(const Traveller& traveller, const Board& board, int row = -1);

/// Gives the text of one table in a line: "4S by South +1 +650 Ann & Bob v Cy & Di", a score of 0
/// as "="; "All Pass" and the names for a board that was passed out, "Not played" for one without a
/// result, but contract and result where the play is known. A ruling stands in the place of the
/// score.
std::string ReadLinBidding(const TravellerRow& row);

/// The entries for the list of play records: the names of each row, in the order of the rows.
std::vector<std::string> AddLinNames(const Traveller& traveller);

/// The index of the entry that contains the part of `namesText` before its first "&"; of several,
/// the one at `preferred`, else the first. -1 when none does.
int FindLinName(const std::vector<std::string>& entries, std::string_view namesText, int preferred);

}  // namespace tricklet
