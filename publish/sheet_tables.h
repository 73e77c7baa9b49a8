// Travellers, rankings and reports as tables for sheets of paper: what stands in them, not where.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "formats/results/ranking.h"
#include "publish/published.h"

namespace tricklet {

enum class ColumnKind : std::uint8_t {
  Word,    ///< at the left of its column
  Number,  ///< at the right
  Names    ///< at the left, as wide as there is room, on two lines where it needs them
};

struct SheetColumn {
  std::string heading;
  ColumnKind kind = ColumnKind::Word;
  friend bool operator==(const SheetColumn&, const SheetColumn&) = default;
};

enum class SheetTableKind : std::uint8_t {
  Traveller,
  Ranking,
  Entrants,  ///< of a report
  Boards,    ///< of a report; its texts are wrapped
  Remarks    ///< sentences, without headings
};

struct SheetTable {
  SheetTableKind kind = SheetTableKind::Traveller;
  int boardNumber = 0;               ///< of a traveller
  std::string title;                 ///< "Board 7", "Ranking, North-South"
  std::string details;               ///< beside the title: "S deals, All vul"
  std::string aside;                 ///< at the end of the line of the title: par
  std::string foot;                  ///< an explanation for the foot of the page
  std::vector<SheetColumn> columns;  ///< as many, of the same kinds, for all tables of a kind
  std::vector<std::vector<std::string>> rows;  ///< a cell for each column, empty where unknown
};

/// Somebody has a score or a ruling.
bool HasResults(const PublishedBoard& published);

/// The travellers of the boards with results, in their order; with `par` where it is known.
std::vector<SheetTable> TravellerTables(const Published& published, bool par);

/// The tables of the ranking, and below them, as a table of sentences without headings, what is not
/// ranked.
std::vector<SheetTable> RankingTables(const Ranking& ranking);

/// "Travellers, boards 1 to 4".
std::string TravellersHeading(int first, int last);

}  // namespace tricklet
