#include "publish/sheet_tables.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "core/text.h"
#include "publish/sheet_text.h"

namespace tricklet {
namespace {

std::vector<SheetColumn> TravellerColumns(const std::string& scoring) {
  return {{"NS", ColumnKind::Number},
          {"EW", ColumnKind::Number},
          {"North-South", ColumnKind::Names},
          {"East-West", ColumnKind::Names},
          {"Contract", ColumnKind::Word},
          {"By", ColumnKind::Word},
          {"Lead", ColumnKind::Word},
          {"Tricks", ColumnKind::Number},
          {"NS +", ColumnKind::Number},
          {"EW +", ColumnKind::Number},
          {scoring + " NS", ColumnKind::Number},
          {scoring + " EW", ColumnKind::Number}};
}

std::string PointsText(std::optional<float> points) {
  return points ? ShortestText(*points) : "";
}

/// The score stands on the side that has it, a ruling on the first.
std::vector<std::string> CellsOf(const TravellerRow& row) {
  const int score = row.score.value_or(0);
  return {row.pair[Side::NorthSouth],
          row.pair[Side::EastWest],
          row.names[Side::NorthSouth],
          row.names[Side::EastWest],
          ContractSymbols(row.ContractText()),
          row.declarer ? std::string(SeatLetter(*row.declarer)) : "",
          row.lead ? CardText(*row.lead) : "",
          row.tricks ? std::to_string(*row.tricks) : "",
          row.score && score >= 0 ? std::to_string(score) : row.adjusted,
          row.score && score < 0 ? std::to_string(-score) : "",
          PointsText(row.points[Side::NorthSouth]),
          PointsText(row.points[Side::EastWest])};
}

SheetTable TravellerTable(const PublishedBoard& published, bool par) {
  const Board& board = published.board;
  SheetTable table;
  table.boardNumber = board.boardNumber;
  table.title = "Board " + std::to_string(board.boardNumber);
  table.details = DealerText(board.Dealer()) + ", " + std::string(VulShort[board.Vulnerability()]);
  if (par && published.par) table.aside = ParSymbols(*published.par);
  const std::vector<TravellerRow>& rows = published.traveller.rows;
  const bool points = std::any_of(rows.begin(), rows.end(), [](const TravellerRow& row) {
    return row.points[Side::NorthSouth].has_value();
  });
  if (points && published.traveller.computed)
    table.foot = "The points are computed from the scores";
  table.columns = TravellerColumns(published.traveller.scoring);
  for (const TravellerRow& row : rows) table.rows.push_back(CellsOf(row));
  return table;
}

SheetTable RankingSheet(const Ranking& ranking, const RankingTable& ranked) {
  constexpr EnumArray<Contestants, const char*, 3> kWho{{"Pair", "Player", "Team"}};
  const bool percentages = ranking.unit == RankingUnit::Percentage;
  SheetTable table;
  table.kind = SheetTableKind::Ranking;
  table.title = "Ranking" + (ranked.heading.empty() ? "" : ", " + ranked.heading);
  if (percentages) table.foot = "The percentage is the mean of those of the boards played";
  table.columns = {{"Place", ColumnKind::Word},
                   {"No", ColumnKind::Number},
                   {kWho[ranking.contestants], ColumnKind::Names},
                   {"Boards", ColumnKind::Number},
                   {percentages ? "Match points" : ranking.UnitText(), ColumnKind::Number},
                   {"%", ColumnKind::Number}};
  for (const RankedEntrant& one : ranked.entrants) {
    table.rows.push_back({one.PlaceText(), one.number, one.names, std::to_string(one.boards),
                          one.TotalText(), percentages ? one.PercentageText() : ""});
  }
  return table;
}

}  // namespace

bool HasResults(const PublishedBoard& published) {
  const std::vector<TravellerRow>& rows = published.traveller.rows;
  return std::any_of(rows.begin(), rows.end(),
                     [](const TravellerRow& row) { return row.HasResult(); });
}

std::vector<SheetTable> TravellerTables(const Published& published, bool par) {
  std::vector<SheetTable> tables;
  for (const PublishedBoard& one : published.boards) {
    if (HasResults(one)) tables.push_back(TravellerTable(one, par));
  }
  return tables;
}

std::vector<SheetTable> RankingTables(const Ranking& ranking) {
  std::vector<SheetTable> tables;
  tables.reserve(ranking.tables.size() + 1);
  for (const RankingTable& ranked : ranking.tables) tables.push_back(RankingSheet(ranking, ranked));
  if (ranking.notRanked.empty()) return tables;
  SheetTable remarks;
  remarks.kind = SheetTableKind::Remarks;
  remarks.title = "Not ranked";
  remarks.columns = {{"", ColumnKind::Names}};
  for (const std::string& sentence : ranking.notRanked) remarks.rows.push_back({sentence});
  tables.push_back(std::move(remarks));
  return tables;
}

std::string TravellersHeading(int first, int last) {
  const std::string number = std::to_string(first);
  return first == last ? "Travellers, board " + number
                       : "Travellers, boards " + number + " to " + std::to_string(last);
}

}  // namespace tricklet
