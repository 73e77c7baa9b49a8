#include "generate/generate.h"

#include <algorithm>
#include <exception>
#include <string>

#include "core/fault.h"
#include "generate/deal.h"
#include "library/board_store.h"
#include "library/file_io.h"
#include "library/library_store.h"

namespace tricklet {
namespace {

/// Asks about overwriting when any board of the range exists.
bool MayOverwrite(Session& session, const Constraints& constraints) {
  const auto [first, last] = constraints.genBoards;
  for (int number = first; number <= last; ++number) {
    if (!FileExists(session.BoardPath(number))) continue;
    return session.host.Ask("You will overwrite existing boards in the library - " +
                                session.LibraryName() + "\nDo you wish to do that?",
                            std::string(kProgramName), Buttons::YesNo) == Answer::Yes;
  }
  return true;
}

/// Deals the current board until the person takes the deal; false when the run is to end.
bool DealBoard(Session& session, const Constraints& constraints, const GenerateOptions& options) {
  Board& board = session.board;
  while (true) {
    ClearAll(board);
    board.hands = GenerateDeal(constraints, board.Dealer(), session.random);
    const Answer answer = options.preview ? options.preview(board) : Answer::Yes;
    if (answer != Answer::No) return answer == Answer::Yes;
  }
}

void DealRange(Session& session, const Constraints& constraints, const GenerateOptions& options,
               GenerateOutcome& outcome) {
  const auto [first, last] = constraints.genBoards;
  for (int number = first; number <= last; ++number) {
    const std::string text = "Generating board " + std::to_string(number);
    session.board.boardNumber = number;
    outcome.cancelled = !session.host.Step(text, number - first, last - first + 1) ||
                        !DealBoard(session, constraints, options);
    if (outcome.cancelled) return;
    StoreBoard(session);
    ++outcome.boardsStored;
  }
}

/// The whole run under one progress display.
void DealAndAnalyse(Session& session, const Constraints& constraints,
                    const GenerateOptions& options, GenerateOutcome& outcome) {
  const BatchScope batch(session);
  const WorkScope work(session.host);
  DealRange(session, constraints, options, outcome);
  if (!options.analyse || outcome.cancelled || !session.getSolver) return;
  const auto [first, last] = constraints.genBoards;
  outcome.tables = AnalyseBoards(session, session.getSolver(), first, last, false);
}

}  // namespace

GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options) {
  if (!SettleChanges(session)) return {.refused = true};
  const int before = session.board.boardNumber;
  if (!MayOverwrite(session, constraints)) return {.refused = true};
  GenerateOutcome outcome;
  try {
    DealAndAnalyse(session, constraints, options, outcome);
  } catch (const std::exception& failure) {
    outcome.failed = true;
    ErrorReport(session.host, FaultFrom(failure));
  }
  ListAndShow(session, outcome.boardsStored > 0 ? constraints.genBoards.front() : before);
  return outcome;
}

}  // namespace tricklet
