// The commands for the results that a library keeps.
#include <algorithm>
#include <array>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/columns.h"
#include "cli/command.h"
#include "core/text.h"
#include "formats/results/traveller.h"

namespace tricklet::cli {
namespace {

constexpr std::size_t kColumns = 11;
using Line = std::array<std::string, kColumns>;

/// Words stand at the left of their column, numbers at the right.
constexpr std::array<bool, kColumns> kLeft{false, false, true,  true,  true, false,
                                           false, false, false, false, true};

Line LineOf(const TravellerRow& row) {
  Line line;
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
  std::array<std::size_t, kColumns> widths{};
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < kColumns; ++i) widths[i] = std::max(widths[i], Width(line[i]));
  }
  std::string text;
  for (const Line& line : lines) {
    std::string aligned;
    for (std::size_t i = 0; i < kColumns; ++i) {
      aligned += (i == 0 ? "" : "  ") +
                 (kLeft[i] ? PadRight(line[i], widths[i]) : PadLeft(line[i], widths[i]));
    }
    AppendLine(text, aligned);
  }
  return text;
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

}  // namespace

void AddResultCommands(CLI::App& app, Command& command) {
  const auto board = std::make_shared<int>(0);
  auto* traveller = app.add_subcommand("traveller", "The results of a board");
  AddBoardArgument(*traveller, *board);
  WhenChosen(*traveller, command, [board](const Context& context, const ConsoleHost&) {
    return TravellerOf(context, *board);
  });
}

}  // namespace tricklet::cli
