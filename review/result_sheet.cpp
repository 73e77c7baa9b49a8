// The results of a board or of an entrant, one by one.
#include <algorithm>

#include "formats/results/seated_pair.h"
#include "review/report_sheet.h"

namespace tricklet {
namespace {

std::string Text(const std::optional<int>& number) {
  return number ? std::to_string(*number) : "";
}

/// The numbers of who sits on `side`, else their names; two players "Ann & Bob".
std::string WhoSits(const SessionReport& report, const ReportTable& table, Side side) {
  std::string text;
  int before = Seating::kNobody;
  for (const Seat seat : {FirstSeat(side), PartnerOf(FirstSeat(side))}) {
    const int index = table.entrants[seat];
    if (index == Seating::kNobody || index == before) continue;
    before = index;
    const ReportEntrant& one = report.entrants.at(static_cast<std::size_t>(index));
    text += (text.empty() ? "" : " & ") + (one.number.empty() ? one.names : one.number);
  }
  return text;
}

std::string VerdictText(const BiddingVerdict& verdict) {
  std::string text = verdict.missedSlam ? "missed slam" : (verdict.missedGame ? "missed game" : "");
  if (verdict.overbid) text += text.empty() ? "overbid" : ", overbid";
  return text;
}

/// Of both sides: "NS missed game".
std::string VerdictsText(const ReportTable& table) {
  const std::string ns = VerdictText(table.bidding[Side::NorthSouth]);
  const std::string ew = VerdictText(table.bidding[Side::EastWest]);
  return (ns.empty() ? "" : "NS " + ns) + (ns.empty() || ew.empty() ? "" : ", ") +
         (ew.empty() ? "" : "EW " + ew);
}

std::string GivenText(const ReportTable& table, Seat seat, bool lead) {
  if (!table.play) return "";
  const GivenAway& given = table.play->given[seat];
  return std::to_string(lead ? given.lead.value_or(0) : given.play);
}

/// What the three who play gave away: declarer, the lead, and the defence after it.
std::vector<std::string> GivenCells(const ReportTable& table) {
  if (!table.play) return {"", "", ""};
  const Seat leader = SeatAfter(table.play->declarer);
  const int defence = table.play->given[leader].play + table.play->given[PartnerOf(leader)].play;
  return {GivenText(table, table.play->declarer, false), GivenText(table, leader, true),
          std::to_string(defence)};
}

/// The columns from the contract to the play, which both sheets have.
std::vector<ReportColumn> CommonColumns() {
  return {{"Contract", "Contract", true},
          {"By", "Declarer", true},
          {"Lead", "Lead", true},
          {"Tricks", "Tricks"},
          {"DD", "Double-dummy tricks"},
          {"Score", "Score"},
          {"Par", "Points against par"},
          {"Bidding", "Of these in the bidding"},
          {"Play", "Of these in the play"},
          {"Decl-", "Tricks given away by declarer"},
          {"Lead-", "Tricks given away by the lead"},
          {"Def-", "Tricks given away in defence after the lead"}};
}

std::vector<std::string> CommonCells(const ReportTable& table, Side side) {
  const auto par = table.ParOf(side);
  const int sign = side == Side::NorthSouth ? 1 : -1;
  std::vector<std::string> cells{
      table.contract,
      table.declarer ? std::string(SeatName[*table.declarer].substr(0, 1)) : "",
      table.lead ? CardText(*table.lead) : "",
      Text(table.tricks),
      Text(table.doubleDummy),
      table.score ? std::to_string(sign * *table.score) : table.adjusted,
      par ? std::to_string(par->total) : "",
      par ? Text(par->bidding) : "",
      par ? Text(par->play) : ""};
  for (std::string& cell : GivenCells(table)) cells.push_back(std::move(cell));
  return cells;
}

void Append(std::vector<ReportColumn>& columns, std::vector<ReportColumn> more) {
  columns.insert(columns.end(), more.begin(), more.end());
}

void Append(std::vector<std::string>& cells, std::vector<std::string> more) {
  cells.insert(cells.end(), more.begin(), more.end());
}

}  // namespace

ReportSheet ResultSheet(const SessionReport& report, const ReportBoard& board) {
  ReportSheet sheet;
  sheet.columns = {
      {"", "Board", false, false}, {"NS", "North-South", true}, {"EW", "East-West", true}};
  Append(sheet.columns, CommonColumns());
  Append(sheet.columns, {{"Beat par", "Who beat par", true},
                         {"Why", "Why par was beaten", true},
                         {"Bid", "Bidding against what can be made", true},
                         {"", "Remark", true, false}});
  for (const std::size_t at : board.tables) {
    const ReportTable& table = report.tables.at(at);
    std::vector<std::string> cells{std::to_string(table.boardNumber),
                                   WhoSits(report, table, Side::NorthSouth),
                                   WhoSits(report, table, Side::EastWest)};
    Append(cells, CommonCells(table, Side::NorthSouth));
    const int points = table.par ? table.par->total : 0;
    Append(cells, {points > 0 ? "NS" : (points < 0 ? "EW" : ""), table.WhyBeaten(),
                   VerdictsText(table), table.play ? table.play->remark : ""});
    sheet.rows.push_back(std::move(cells));
  }
  return sheet;
}

ReportSheet EntrantResultSheet(const SessionReport& report, std::size_t entrant) {
  const ReportEntrant& one = report.entrants.at(entrant);
  ReportSheet sheet;
  sheet.columns = {{"", "Number", false, false},
                   {"", "Names", true, false},
                   {"Board", "Board"},
                   {"Sat", "Direction", true},
                   {"Against", "Opponents", true}};
  Append(sheet.columns, CommonColumns());
  Append(sheet.columns,
         {{"Bid", "Bidding against what can be made", true}, {"", "Remark", true, false}});
  for (const std::size_t at : one.tables) {
    const ReportTable& table = report.tables.at(at);
    const auto seat =
        std::find(table.entrants.begin(), table.entrants.end(), static_cast<int>(entrant));
    const Side side = SideOf(static_cast<Seat>(seat - table.entrants.begin()));
    const Side other = side == Side::NorthSouth ? Side::EastWest : Side::NorthSouth;
    std::vector<std::string> cells{one.number, one.names, std::to_string(table.boardNumber),
                                   side == Side::NorthSouth ? "NS" : "EW",
                                   WhoSits(report, table, other)};
    Append(cells, CommonCells(table, side));
    Append(cells, {VerdictText(table.bidding[side]), table.play ? table.play->remark : ""});
    sheet.rows.push_back(std::move(cells));
  }
  return sheet;
}

}  // namespace tricklet
