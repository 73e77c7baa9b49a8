// The commands for the results that a library keeps.
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/columns.h"
#include "core/text.h"
#include "formats/results/ranking.h"
#include "formats/results/traveller.h"

namespace tricklet::cli {
namespace {

using Line = std::vector<std::string>;
using Lefts = std::vector<bool>;

constexpr std::size_t kColumns = 11;

Line LineOf(const TravellerRow& row) {
  Line line(kColumns);
  line[0] = row.pair[Side::NorthSouth];
  line[1] = row.pair[Side::EastWest];
  line[2] = row.ContractText();
  if (row.declarer) line[3] = SeatName[*row.declarer].substr(0, 1);
  if (row.lead) {
    line[4] = CardText(*row.lead);
  }
  if (row.tricks) line[5] = std::to_string(*row.tricks);
  line[6] = row.adjusted;
  if (row.score && *row.score >= 0) line[6] = std::to_string(*row.score);
  if (row.score && *row.score < 0) line[7] = std::to_string(-*row.score);
  if (const auto points = row.points[Side::NorthSouth]) line[8] = ShortestText(*points);
  if (const auto points = row.points[Side::EastWest]) line[9] = ShortestText(*points);
  line[10] = row.NamesText();
  return line;
}

std::string TravellerText(const Traveller& traveller) {
  std::vector<Line> lines{{"NS", "EW", "Contract", "By", "Lead", "Tricks", "NS+", "EW+",
                           traveller.scoring, traveller.scoring, "Names"}};
  for (const TravellerRow& row : traveller.rows) lines.push_back(LineOf(row));
  const Lefts left{false, false, true, true, true, false, false, false, false, false, true};
  return AlignedLines(lines, left);
}

ExitCode TravellerOf(const Context& context, int boardNumber) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const LinFile file = LoadLinData(session);
  const Traveller traveller = MakeTraveller(file, boardNumber);
  if (traveller.rows.empty()) {
    session.host.Tell(file.Empty()
                          ? "The library " + session.ShownLibrary() + " has no results"
                          : "There are no results of board " + std::to_string(boardNumber));
    return ExitCode::Refused;
  }
  context.data << TravellerText(traveller);
  return ExitCode::Done;
}

/// With IMPs the total decides, and there is no percentage.
std::string RankingTableText(const Ranking& ranking, const RankingTable& table) {
  const bool percentages = ranking.unit == RankingUnit::Percentage;
  std::vector<Line> lines{{"Place", "No", "Boards", percentages ? "MP" : ranking.UnitText(),
                           percentages ? ranking.UnitText() : "", "Names"}};
  for (const RankedEntrant& one : table.entrants) {
    lines.push_back({std::to_string(one.place) + (one.shared ? "=" : " "), one.number,
                     std::to_string(one.boards), one.TotalText(),
                     percentages ? one.PercentageText() : "", one.names});
  }
  return (table.heading.empty() ? "" : table.heading + "\n") +
         AlignedLines(lines, {false, false, false, false, false, true});
}

ExitCode ShowRanking(const Context& context) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const LinFile file = LoadLinData(session);
  if (file.Empty()) {
    session.host.Tell("The library " + session.ShownLibrary() + " has no results");
    return ExitCode::Refused;
  }
  const Ranking ranking = MakeRanking(file, MakeTravellers(file));
  for (const RankingTable& table : ranking.tables) {
    context.data << (&table == ranking.tables.data() ? "" : "\n")
                 << RankingTableText(ranking, table);
  }
  for (const std::string& sentence : ranking.notRanked) session.host.Tell(sentence);
  return ranking.tables.empty() ? ExitCode::Refused : ExitCode::Done;
}

}  // namespace

void AddResultCommands(CLI::App& app, Command& command) {
  const auto board = std::make_shared<int>(0);
  auto* traveller = app.add_subcommand("traveller", "The results of a board");
  AddBoardArgument(*traveller, *board);
  WhenChosen(*traveller, command, [board](const Context& context, const ConsoleHost&) {
    return TravellerOf(context, *board);
  });

  auto* ranking = app.add_subcommand("ranking", "The ranking of the session");
  WhenChosen(*ranking, command,
             [](const Context& context, const ConsoleHost&) { return ShowRanking(context); });
}

}  // namespace tricklet::cli
