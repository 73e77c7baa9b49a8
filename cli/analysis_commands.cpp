// The commands for double-dummy tables and the online page.
#include <algorithm>
#include <memory>
#include <optional>
#include <ostream>

#include <CLI/CLI.hpp>

#include "analysis/online_link.h"
#include "cli/board_text.h"
#include "cli/command.h"
#include "formats/results/traveller.h"
#include "library/board_range.h"
#include "library/board_store.h"
#include "library/tables.h"

namespace tricklet::cli {
namespace {

struct AnalyseArguments {
  std::optional<int> first;  ///< nothing: the whole library
  std::optional<int> last;   ///< nothing: `first` alone
  bool again = false;        ///< boards that have a table too
  bool show = false;         ///< print the tables of the boards afterwards
};

void ShowTables(const Context& context, int first, int last) {
  Session& session = context.session;
  Board board;
  for (int number = first; number <= last; ++number) {
    if (!session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    board.boardNumber = number;
    if (!ReadBoard(session, board) || !board.makeableValid) continue;
    context.data << "Board " << number << '\n'
                 << TableText(board, session.settings.makeableContract) << '\n';
  }
}

ExitCode Analyse(const Context& context, const AnalyseArguments& arguments) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const int first = arguments.first.value_or(kFirstBoardNumber);
  const int last = arguments.last.value_or(arguments.first.value_or(kLastBoardNumber));
  if (last < first) {
    session.host.Tell(kInvalidRange);
    return ExitCode::Refused;
  }
  if (!RequireSolver(session)) return ExitCode::Refused;
  const AnalysisOutcome outcome =
      AnalyseBoards(session, session.getSolver(), first, last, arguments.again);
  session.host.Tell(AnalysisText(outcome));
  if (arguments.show) ShowTables(context, first, last);
  const bool done = outcome.failure.empty() && !outcome.cancelled && outcome.readOnly.empty() &&
                    outcome.unreadable == 0;
  return done ? ExitCode::Done : ExitCode::Refused;
}

ExitCode Link(const Context& context, int boardNumber) {
  Session& session = context.session;
  if (!LoadBoard(context, boardNumber)) return ExitCode::Refused;
  if (session.settings.solverHost.empty()) {
    session.host.Tell("Name the page's host first: settings SolverHost HOST");
    return ExitCode::Refused;
  }
  const std::string record =
      LinPlayRecord(MakeTraveller(LoadLinData(session), boardNumber), session.board);
  const std::string error = SolverAddressError(session.board);
  if (record.empty() && !error.empty()) {
    session.host.Tell(error);
    return ExitCode::Refused;
  }
  context.data << SolverAddress(session.board, session.LibraryName(), session.settings.solverHost,
                                record)
               << '\n';
  return ExitCode::Done;
}

}  // namespace

void AddAnalysisCommands(CLI::App& app, Command& command) {
  const auto asked = std::make_shared<AnalyseArguments>();
  const CLI::Range boards(kFirstBoardNumber, kLastBoardNumber);
  auto* analyse = app.add_subcommand("analyse", "Compute missing double-dummy tables");
  analyse->add_option("FIRST", asked->first, "First board; none: the whole library")->check(boards);
  analyse->add_option("LAST", asked->last, "Last board")->check(boards);
  analyse->add_flag("--again", asked->again, "Compute the tables that are there too");
  analyse->add_flag("--show", asked->show, "Print the tables");
  WhenChosen(*analyse, command, [asked](const Context& context, const ConsoleHost&) {
    return Analyse(context, *asked);
  });
  const auto board = std::make_shared<int>(0);
  auto* link = app.add_subcommand("link", "Print the address of the online double-dummy page");
  AddBoardArgument(*link, *board);
  WhenChosen(*link, command,
             [board](const Context& context, const ConsoleHost&) { return Link(context, *board); });
}

}  // namespace tricklet::cli
