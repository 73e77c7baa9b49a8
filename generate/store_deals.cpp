#include "generate/store_deals.h"

#include <exception>

#include "core/fault.h"
#include "generate/overwrite.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

void Run(Session& session, const std::shared_ptr<const Script>& script, Solver* solver,
         const DealRunOptions& options, int first, LibraryWrite& write,
         StoreDealsOutcome& outcome) {
  const BatchScope batch(session);
  std::exception_ptr failure;
  try {
    outcome.run = RunDeals(script, solver, session.host, options, [&](const FoundDeal& deal) {
      session.board.boardNumber = first + outcome.boardsStored;
      ClearAll(session.board);
      ++session.boardsLoaded;
      session.board.hands = deal.hands;
      StoreBoard(session, write);
      ++outcome.boardsStored;
      return true;
    });
  } catch (const std::exception&) {
    failure = std::current_exception();  // the boards replaced before it go to the bin all the same
  }
  const std::string notRecycled = write.RecycleReplaced(session.host);
  write.Finish();
  if (failure) std::rethrow_exception(failure);
  if (notRecycled.empty()) return;
  outcome.failed = true;
  session.host.TellError(notRecycled);
}

}  // namespace

StoreDealsOutcome StoreDeals(Session& session, const std::shared_ptr<const Script>& script,
                             Solver* solver, const DealRunOptions& options, int first) {
  if (!SettleChanges(session)) return {.refused = true};
  const int before = session.board.boardNumber;
  const int last = first + static_cast<int>(options.produce) - 1;
  if (!MayOverwrite(session, first, last)) return {.refused = true};
  auto write = LibraryWrite::Begin(session);
  if (!write) return {.refused = true};
  write->KeepReplaced(session, "deal");
  StoreDealsOutcome outcome;
  try {
    Run(session, script, solver, options, first, *write, outcome);
  } catch (const std::exception& failure) {
    outcome.failed = true;
    ErrorReport(session.host, FaultFrom(failure));
  }
  ListAndShow(session, outcome.boardsStored > 0 ? first : before);
  return outcome;
}

}  // namespace tricklet
