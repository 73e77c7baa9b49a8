#include "generate/generate.h"

#include <exception>
#include <string>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "disk/presence.h"
#include "generate/deal.h"
#include "generate/overwrite.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

/// Deals board `number` until the person takes the deal; false when the run is to end.
bool DealBoard(Session& session, int number, const Constraints& constraints,
               const GenerateOptions& options) {
  const auto [first, last] = constraints.genBoards;
  Board& board = session.board;
  while (true) {
    board.boardNumber = number;
    ClearAll(board);
    ++session.boardsLoaded;
    board.hands = GenerateDeal(constraints, board.Dealer(), session.random);
    const std::string text = "Generating board " + std::to_string(number);
    if (!session.host.Step(text, number - first, last - first + 1)) return false;
    const Answer answer = options.preview ? options.preview(board) : Answer::Yes;
    if (answer != Answer::No) return answer == Answer::Yes;
  }
}

/// Stores the current board; a file that is marked read-only stays as it is, with a message.
bool StoreDeal(Session& session, LibraryWrite& write) {
  try {
    StoreBoard(session, write);
    return true;
  } catch (const Fault& fault) {
    if (!IsReadOnly(session.BoardPath(session.board.boardNumber))) throw;
    session.host.TellError(fault.Description());
    return false;
  }
}

void DealRange(Session& session, const Constraints& constraints, const GenerateOptions& options,
               LibraryWrite& write, GenerateOutcome& outcome) {
  const auto [first, last] = constraints.genBoards;
  for (int number = first; number <= last; ++number) {
    outcome.cancelled = !DealBoard(session, number, constraints, options);
    if (outcome.cancelled) return;
    outcome.failed = !StoreDeal(session, write);
    if (outcome.failed) return;
    ++outcome.boardsStored;
    const Board& board = session.board;
    if (!MeetsConstraints(constraints, board.hands, board.Dealer())) {
      outcome.outside.push_back(number);
    }
  }
}

/// The whole run under one progress display.
void DealAndAnalyse(Session& session, const Constraints& constraints,
                    const GenerateOptions& options, LibraryWrite& write, GenerateOutcome& outcome) {
  const BatchScope batch(session);
  const WorkScope work(session.host);
  std::exception_ptr failure;
  try {
    DealRange(session, constraints, options, write, outcome);
  } catch (const std::exception&) {
    failure = std::current_exception();  // the boards replaced before it go to the bin all the same
  }
  outcome.notRecycled = write.RecycleReplaced(session.host);
  write.Finish();
  if (failure) std::rethrow_exception(failure);
  if (!options.analyse || outcome.cancelled || outcome.failed || !session.getSolver) return;
  const auto [first, last] = constraints.genBoards;
  outcome.tables = AnalyseBoards(session, session.getSolver(), first, last, false);
}

/// "3 boards do not meet the constraints: 4, 9, 17", when there are many, only the first ones.
std::string OutsideText(const std::vector<int>& boards) {
  return std::to_string(boards.size()) + (boards.size() == 1 ? " board does" : " boards do") +
         " not meet the constraints: " + BoundedList(boards);
}

}  // namespace

std::string GenerateText(const GenerateOutcome& outcome) {
  std::string text = outcome.outside.empty() ? "" : OutsideText(outcome.outside);
  const AnalysisOutcome& tables = outcome.tables;
  const bool done = Faultless(tables) && !tables.cancelled;
  if (!done) text += (text.empty() ? "" : "\n") + AnalysisText(tables);
  if (!outcome.notRecycled.empty()) text += (text.empty() ? "" : "\n") + outcome.notRecycled;
  return text;
}

GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options) {
  if (!SettleChanges(session)) return {.refused = true};
  const int before = session.board.boardNumber;
  if (!MayOverwrite(session, constraints.genBoards.front(), constraints.genBoards.back())) {
    return {.refused = true};
  }
  auto write = LibraryWrite::Begin(session);
  if (!write) return {.refused = true};
  write->KeepReplaced(session, "generation");
  GenerateOutcome outcome;
  try {
    DealAndAnalyse(session, constraints, options, *write, outcome);
  } catch (const std::exception& failure) {
    outcome.failed = true;
    ErrorReport(session.host, FaultFrom(failure));
  }
  outcome.failed = outcome.failed || !outcome.notRecycled.empty();
  ListAndShow(session, outcome.boardsStored > 0 ? constraints.genBoards.front() : before);
  const std::string text = GenerateText(outcome);
  const bool sound = Faultless(outcome.tables) && outcome.notRecycled.empty();
  const MessageKind kind = sound ? MessageKind::Result : MessageKind::Error;
  if (!text.empty()) session.host.Tell({.text = text, .kind = kind});
  return outcome;
}

}  // namespace tricklet
