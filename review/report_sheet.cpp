#include "review/report_sheet.h"

#include <functional>
#include <utility>

#include "core/columns.h"
#include "core/csv.h"
#include "core/text.h"

namespace tricklet {
namespace {

using Cells = std::vector<std::string>;

std::string Text(int number) {
  return std::to_string(number);
}

std::string Mean(const std::optional<double>& mean, int decimals) {
  return mean ? DecimalText(*mean, decimals) : "";
}

constexpr int kPointDecimals = 1;
constexpr int kTrickDecimals = 2;

std::string Mean(const MeanFigure& figure) {
  return Mean(figure.Mean(), kPointDecimals);
}

std::string Mean(const GivenFigures& figures) {
  return Mean(figures.Mean(), kTrickDecimals);
}

/// Tricks that the opponents gave it in any way, per play.
std::string Received(const ReportEntrant& one) {
  const int plays = one.gotFromDeclarer.plays + one.gotFromLead.plays;
  const int tricks =
      one.gotFromDeclarer.tricks + one.gotFromLead.tricks + one.gotFromDefence.tricks;
  return Mean(GivenFigures{tricks, plays});
}

/// A column and what it says of an entrant.
struct EntrantColumn {
  ReportColumn column;
  std::function<std::string(const ReportEntrant&)> cell;
};

constexpr bool kLeft = true;
constexpr bool kRight = false;
constexpr bool kCsvOnly = false;

std::vector<EntrantColumn> PlayColumns() {
  using E = const ReportEntrant&;
  return {
      {{"Decl", "Tricks given away as declarer, per play"},
       [](E one) { return Mean(one.declarer); }},
      {{"Lead", "Tricks given away in the opening lead, per lead"},
       [](E one) { return Mean(one.lead); }},
      {{"Def", "Tricks given away in defence after the lead, per play"},
       [](E one) { return Mean(one.defence); }},
      {{"Got", "Tricks given to it by the opponents, per play"}, Received},
      {{"", "Plays as declarer", kRight, kCsvOnly}, [](E one) { return Text(one.declarer.plays); }},
      {{"", "Opening leads", kRight, kCsvOnly}, [](E one) { return Text(one.lead.plays); }},
      {{"", "Plays in defence", kRight, kCsvOnly}, [](E one) { return Text(one.defence.plays); }},
      {{"", "Tricks given by opposing declarers", kRight, kCsvOnly},
       [](E one) { return Text(one.gotFromDeclarer.tricks); }},
      {{"", "Tricks given by opposing leads", kRight, kCsvOnly},
       [](E one) { return Text(one.gotFromLead.tricks); }},
      {{"", "Tricks given by opposing defence", kRight, kCsvOnly},
       [](E one) { return Text(one.gotFromDefence.tricks); }},
  };
}

std::vector<EntrantColumn> LevelColumns(const std::string& name, const std::string& heading,
                                        LevelFigures ReportEntrant::*level) {
  using E = const ReportEntrant&;
  return {
      {{"", name + "s bid", kRight, kCsvOnly}, [level](E one) { return Text((one.*level).bid); }},
      {{"", name + "s made", kRight, kCsvOnly}, [level](E one) { return Text((one.*level).made); }},
      {{"", name + "s makeable double-dummy", kRight, kCsvOnly},
       [level](E one) { return Text((one.*level).makeable); }},
      {{heading, name + "s missed"}, [level](E one) { return Text((one.*level).missed); }},
  };
}

std::vector<EntrantColumn> ContractColumns() {
  using E = const ReportEntrant&;
  std::vector<EntrantColumn> columns{
      {{"Bid", "Contracts declared"}, [](E one) { return Text(one.declared); }},
      {{"Made", "Contracts made"}, [](E one) { return Text(one.made); }},
      {{"Can", "Contracts declared that can be made double-dummy"},
       [](E one) { return Text(one.makeable); }},
  };
  for (auto& each : LevelColumns("Game", "-Game", &ReportEntrant::games)) columns.push_back(each);
  for (auto& each : LevelColumns("Slam", "-Slam", &ReportEntrant::slams)) columns.push_back(each);
  columns.push_back({{"Over", "Contracts overbid"}, [](E one) { return Text(one.overbid); }});
  columns.push_back(
      {{"x=", "Doubled contracts made"}, [](E one) { return Text(one.doubledMade); }});
  columns.push_back(
      {{"x-", "Doubled contracts down"}, [](E one) { return Text(one.doubledDown); }});
  columns.push_back({{"", "Doubled contracts made by opponents", kRight, kCsvOnly},
                     [](E one) { return Text(one.theyMadeDoubled); }});
  columns.push_back({{"", "Doubled contracts of opponents down", kRight, kCsvOnly},
                     [](E one) { return Text(one.theyWentDown); }});
  return columns;
}

std::vector<EntrantColumn> EntrantColumns() {
  using E = const ReportEntrant&;
  std::vector<EntrantColumn> columns{
      {{"", "Direction", kLeft, kCsvOnly}, [](E one) { return one.field; }},
      {{"No", "Number"}, [](E one) { return one.number; }},
      {{"Boards", "Boards"}, [](E one) { return Text(one.boards); }},
      {{"Par", "Points against par, mean"}, [](E one) { return Mean(one.par); }},
      {{"Bidding", "Of these in the bidding"}, [](E one) { return Mean(one.bidding); }},
      {{"Play", "Of these in the play"}, [](E one) { return Mean(one.play); }},
  };
  for (auto& each : PlayColumns()) columns.push_back(each);
  for (auto& each : ContractColumns()) columns.push_back(each);
  columns.push_back({{"Names", "Names", kLeft}, [](E one) { return one.names; }});
  return columns;
}

/// "4S by South: ♠A ♦K (1 of 3)": the lead and how many of the tables made it.
std::string BeatenText(const ReportBoard& board) {
  std::string text;
  for (const BeatableContract& one : board.beatable) {
    text += (text.empty() ? "" : "; ") + one.ContractText() + ": " + one.LeadsText() + " (" +
            Text(one.found) + " of " + Text(one.times) + ")";
  }
  return text;
}

}  // namespace

ReportSheet EntrantSheet(const SessionReport& report, const std::vector<std::size_t>& entrants) {
  ReportSheet sheet;
  const std::vector<EntrantColumn> columns = EntrantColumns();
  for (const EntrantColumn& each : columns) sheet.columns.push_back(each.column);
  for (const std::size_t index : entrants) {
    Cells& cells = sheet.rows.emplace_back();
    for (const EntrantColumn& each : columns) cells.push_back(each.cell(report.entrants.at(index)));
  }
  return sheet;
}

ReportSheet BoardSheet(const SessionReport& report) {
  ReportSheet sheet;
  sheet.columns = {{"Board", "Board"},
                   {"Par", "Par", kLeft},
                   {"", "Par of North-South", kRight, kCsvOnly},
                   {"Results", "Results"},
                   {"Mean", "North-South against par, mean"},
                   {"NS", "Tables at which North-South beat par"},
                   {"EW", "Tables at which East-West beat par"},
                   {"=", "Tables at par"},
                   {"Leads that beat a contract", "Leads that beat a contract", kLeft}};
  for (const ReportBoard& board : report.boards) {
    constexpr std::size_t kParWord = 4;  // "Par " stands in the heading
    sheet.rows.push_back(
        {Text(board.boardNumber), board.par ? ParText(*board.par).substr(kParWord) : "",
         board.par ? Text(board.par->score) : "", Text(board.results), Mean(board.againstPar),
         Text(board.beatPar[Side::NorthSouth]), Text(board.beatPar[Side::EastWest]),
         Text(board.atPar), BeatenText(board)});
  }
  return sheet;
}

std::string AlignedSheet(const ReportSheet& sheet) {
  std::vector<Cells> lines(1 + sheet.rows.size());
  std::vector<bool> left;
  for (std::size_t column = 0; column < sheet.columns.size(); ++column) {
    if (!sheet.columns[column].brief) continue;
    bool any = false;
    for (const Cells& cells : sheet.rows) any = any || !cells.at(column).empty();
    if (!any) continue;
    left.push_back(sheet.columns[column].left);
    lines[0].push_back(sheet.columns[column].heading);
    for (std::size_t row = 0; row < sheet.rows.size(); ++row) {
      lines[row + 1].push_back(sheet.rows[row][column]);
    }
  }
  return AlignedLines(lines, left);
}

std::string CsvSheet(const ReportSheet& sheet) {
  Cells headings;
  for (const ReportColumn& column : sheet.columns) headings.push_back(column.meaning);
  std::string text = CsvLine(headings);
  for (const Cells& cells : sheet.rows) text += CsvLine(cells);
  return text;
}

}  // namespace tricklet
