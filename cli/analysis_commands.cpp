#include "cli/analysis_commands.h"

#include <algorithm>
#include <ostream>

#include "analysis/online_link.h"
#include "cli/board_text.h"
#include "formats/results/traveller.h"
#include "library/board_store.h"
#include "library/tables.h"

namespace tricklet::cli {
namespace {

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

}  // namespace

ExitCode Analyse(const Context& context, const AnalyseArguments& arguments) {
  Session& session = context.session;
  if (!OpenLibrary(context, false)) return ExitCode::Refused;
  const int first = arguments.first.value_or(kFirstBoardNumber);
  const int last = arguments.last.value_or(arguments.first.value_or(kLastBoardNumber));
  if (last < first) {
    session.host.Tell("Please enter a valid range");
    return ExitCode::Refused;
  }
  if (!RequireSolver(session)) return ExitCode::Refused;
  const AnalysisOutcome outcome =
      AnalyseBoards(session, session.getSolver(), first, last, arguments.again);
  session.host.Tell(AnalysisText(outcome));
  if (arguments.show) ShowTables(context, first, last);
  return outcome.failure.empty() && !outcome.cancelled ? ExitCode::Done : ExitCode::Refused;
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

}  // namespace tricklet::cli
