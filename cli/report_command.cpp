// The command that tells what a session looks like double-dummy.
#include <algorithm>
#include <memory>
#include <numeric>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "cli/command.h"
#include "core/text.h"
#include "library/tables.h"
#include "review/report_sheet.h"
#include "review/session_review.h"

namespace tricklet::cli {
namespace {

struct Asked {
  std::optional<std::string> pair;
  std::optional<std::string> name;
  std::optional<int> board;
  bool boards = false;
  bool csv = false;
};

std::string SheetText(const ReportSheet& sheet, bool csv) {
  return csv ? CsvSheet(sheet) : AlignedSheet(sheet);
}

/// Those of the number that was asked for, or with the name in theirs; all when neither was.
std::vector<std::size_t> Chosen(const SessionReport& report, const Asked& asked) {
  std::vector<std::size_t> chosen;
  const std::string name = FoldCase(asked.name.value_or(""));
  for (std::size_t i = 0; i < report.entrants.size(); ++i) {
    const ReportEntrant& one = report.entrants[i];
    if (asked.pair && !EqualNoCase(*asked.pair, one.number)) continue;
    if (asked.name && FoldCase(one.names).find(name) == std::string::npos) continue;
    chosen.push_back(i);
  }
  return chosen;
}

/// A table for each field.
void ShowEntrants(std::ostream& out, const SessionReport& report,
                  const std::vector<std::size_t>& entrants, bool csv) {
  if (csv) {
    out << SheetText(EntrantSheet(report, entrants), csv);
    return;
  }
  for (std::size_t first = 0; first < entrants.size();) {
    const std::string& field = report.entrants[entrants[first]].field;
    std::vector<std::size_t> together;
    while (first < entrants.size() && report.entrants[entrants[first]].field == field) {
      together.push_back(entrants[first++]);
    }
    if (!field.empty()) out << field << '\n';
    out << AlignedSheet(EntrantSheet(report, together)) << '\n';
  }
}

ExitCode ShowSome(const Context& context, const SessionReport& report, const Asked& asked) {
  const std::vector<std::size_t> chosen = Chosen(report, asked);
  if (chosen.empty()) {
    const std::string whom =
        asked.pair ? "number " + *asked.pair : "name " + asked.name.value_or("");
    context.session.host.Tell("Nobody in the results has the " + whom);
    return ExitCode::Refused;
  }
  ReportSheet all;
  for (const std::size_t entrant : chosen) {
    ReportSheet sheet = EntrantResultSheet(report, entrant);
    if (!asked.csv) {
      ShowEntrants(context.data, report, {entrant}, false);
      context.data << AlignedSheet(sheet) << '\n';
    }
    all.columns = std::move(sheet.columns);
    all.rows.insert(all.rows.end(), sheet.rows.begin(), sheet.rows.end());
  }
  if (asked.csv) context.data << SheetText(all, true);
  return ExitCode::Done;
}

ExitCode ShowBoard(const Context& context, const SessionReport& report, int number, bool csv) {
  const auto board =
      std::find_if(report.boards.begin(), report.boards.end(),
                   [&](const ReportBoard& each) { return each.boardNumber == number; });
  if (board == report.boards.end()) {
    context.session.host.Tell("There are no results of board " + std::to_string(number));
    return ExitCode::Refused;
  }
  if (!csv) {
    SessionReport alone;
    alone.boards = {*board};
    context.data << AlignedSheet(BoardSheet(alone)) << '\n';
  }
  context.data << SheetText(ResultSheet(report, *board), csv) << (csv ? "" : "\n");
  return ExitCode::Done;
}

ExitCode ShowReport(const Context& context, const SessionReport& report, const Asked& asked) {
  if (asked.pair || asked.name) return ShowSome(context, report, asked);
  if (asked.board) return ShowBoard(context, report, *asked.board, asked.csv);
  if (!asked.csv || !asked.boards) {
    std::vector<std::size_t> all(report.entrants.size());
    std::iota(all.begin(), all.end(), 0U);
    ShowEntrants(context.data, report, all, asked.csv);
  }
  if (!asked.csv || asked.boards) {
    context.data << SheetText(BoardSheet(report), asked.csv) << (asked.csv ? "" : "\n");
  }
  return ExitCode::Done;
}

ExitCode Report(const Context& context, const Asked& asked) {
  Session& session = context.session;
  if (!OpenLibrary(context, false) || !RequireSolver(session)) return ExitCode::Refused;
  const ReportOutcome outcome = ReportSession(session, session.getSolver(), {});
  if (outcome.cancelled && outcome.report) {
    session.host.Tell("Report cancelled: " + std::to_string(outcome.report->reviewed) + " of " +
                      std::to_string(outcome.report->plays) + " plays have been reviewed");
  }
  if (!outcome.failure.empty()) session.host.Tell(outcome.failure);
  if (!outcome.report || outcome.cancelled || !outcome.failure.empty()) return ExitCode::Refused;
  const ExitCode code = ShowReport(context, *outcome.report, asked);
  if (code != ExitCode::Done) return code;
  if (!asked.csv) context.data << kDoubleDummyLabel << '\n';
  for (const std::string& remark : outcome.report->remarks) session.host.Tell(remark);
  return code;
}

}  // namespace

void AddReportCommand(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<Asked>();
  auto* report = app.add_subcommand("report", "What the session looks like double-dummy");
  auto* which = report->add_option_group("which");
  which->add_option("--pair", asked->pair, "The boards of the pair with this number")
      ->type_name("N")
      ->check(NotEmpty);
  which->add_option("--name", asked->name, "The boards of those with this in their names")
      ->type_name("X")
      ->check(NotEmpty);
  which->add_option("--board", asked->board, "The results of this board")
      ->type_name("N")
      ->check(CLI::Range(kFirstBoardNumber, kLastBoardNumber));
  which->add_flag("--boards", asked->boards, "With --csv: the boards instead of the pairs");
  which->require_option(0, 1);
  report->add_flag("--csv", asked->csv, "Comma-separated values, for a spreadsheet");
  WhenChosen(*report, command, [asked](const Context& context, const ConsoleHost&) {
    return Report(context, *asked);
  });
}

}  // namespace tricklet::cli
