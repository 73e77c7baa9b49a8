#include "generate/board_run.h"

#include <exception>

#include "core/fault.h"
#include "disk/presence.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_scan.h"
#include "library/loss_text.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

/// Asks about overwriting when any board of the range exists.
bool MayOverwrite(Session& session, int first, int last) {
  const std::string atStake =
      BoardsAtStake(ScanLibrary(session.LibraryPath()), first, last, "would be replaced");
  if (atStake.empty()) return true;
  return session.host.Ask({.text = "You will overwrite existing boards in the library - " +
                                   session.ShownLibrary() + "\nDo you wish to do that?",
                           .safe = Answer::No,
                           .detail = atStake + FateOfReplaced(session.settings)}) == Answer::Yes;
}

void DealAndAnalyse(Session& session, const BoardRunPlan& plan,
                    const std::function<bool(BoardStorer&)>& deal, LibraryWrite& write,
                    BoardRunOutcome& outcome) {
  const BatchScope batch(session);
  const WorkScope work(session.host);
  BoardStorer storer(session, write, outcome);
  std::exception_ptr failure;
  try {
    outcome.cancelled = !deal(storer);
  } catch (const std::exception&) {
    failure = std::current_exception();  // the boards replaced before it go to the bin all the same
  }
  outcome.notRecycled = write.RecycleReplaced(session.host);
  write.Finish();
  if (failure) std::rethrow_exception(failure);
  if (!plan.analyse || outcome.cancelled || outcome.failed || !session.getSolver) return;
  const int last = plan.first + outcome.boardsStored - 1;
  outcome.tables = AnalyseBoards(session, session.getSolver(), plan.first, last, false);
}

/// A line for each thing to report; empty when all went well.
std::string EndText(const BoardRunOutcome& outcome, const std::string& remark) {
  const AnalysisOutcome& tables = outcome.tables;
  const bool done = Faultless(tables) && !tables.cancelled;
  std::string text = remark;
  for (const std::string& further : {done ? "" : AnalysisText(tables), outcome.notRecycled}) {
    if (!text.empty() && !further.empty()) text += '\n';
    text += further;
  }
  return text;
}

}  // namespace

void BoardStorer::Begin(int number) {
  session_.board.boardNumber = number;
  ClearAll(session_.board);
  ++session_.boardsLoaded;
}

bool BoardStorer::Store() {
  try {
    StoreBoard(session_, write_);
    ++outcome_.boardsStored;
    return true;
  } catch (const Fault& fault) {
    if (!IsReadOnly(session_.BoardPath(session_.board.boardNumber))) throw;
    session_.host.TellError(fault.Description());
    outcome_.failed = true;
    return false;
  }
}

bool Succeeded(const BoardRunOutcome& outcome) {
  const AnalysisOutcome& tables = outcome.tables;
  return !outcome.refused && !outcome.cancelled && !outcome.failed && Faultless(tables) &&
         !tables.cancelled;
}

BoardRunOutcome RunOverBoards(Session& session, const BoardRunPlan& plan,
                              const std::function<bool(BoardStorer&)>& deal,
                              const std::function<std::string(const BoardRunOutcome&)>& remark) {
  if (!SettleChanges(session)) return {.refused = true};
  const int before = session.board.boardNumber;
  if (!MayOverwrite(session, plan.first, plan.last)) return {.refused = true};
  auto write = LibraryWrite::Begin(session);
  if (!write) return {.refused = true};
  write->KeepReplaced(session, plan.command);
  BoardRunOutcome outcome;
  try {
    DealAndAnalyse(session, plan, deal, *write, outcome);
  } catch (const std::exception& failure) {
    outcome.failed = true;
    ErrorReport(session.host, FaultFrom(failure));
  }
  outcome.failed = outcome.failed || !outcome.notRecycled.empty();
  ListAndShow(session, outcome.boardsStored > 0 ? plan.first : before);
  outcome.told = EndText(outcome, remark(outcome));
  const bool sound = Faultless(outcome.tables) && outcome.notRecycled.empty();
  const MessageKind kind = sound ? MessageKind::Result : MessageKind::Error;
  if (!outcome.told.empty()) session.host.Tell({.text = outcome.told, .kind = kind});
  return outcome;
}

}  // namespace tricklet
