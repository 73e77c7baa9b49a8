#include "generate/store_deals.h"

#include <string>

namespace tricklet {
namespace {

std::string TooFewText(const BoardRunOutcome& run, const DealRunOutcome& dealing, int wanted) {
  if (run.cancelled || run.failed || run.boardsStored >= wanted) return {};
  return "Only " + std::to_string(run.boardsStored) + " of " + std::to_string(wanted) +
         " boards: no more deals met the condition in " + std::to_string(dealing.tried) + " tries";
}

}  // namespace

StoreDealsOutcome StoreDeals(Session& session, const std::shared_ptr<const Script>& script,
                             Solver* solver, const DealRunOptions& options, int first,
                             bool analyse) {
  DealRunOutcome dealing;
  const int wanted = static_cast<int>(options.produce);
  const auto deal = [&](BoardStorer& storer) {
    int number = first;
    dealing = RunDeals(script, solver, session.host, options, [&](const FoundDeal& found) {
      storer.Begin(number++);
      session.board.hands = found.hands;
      return storer.Store();
    });
    return !dealing.cancelled;
  };
  const auto remark = [&](const BoardRunOutcome& run) { return TooFewText(run, dealing, wanted); };
  return {RunOverBoards(session, {first, first + wanted - 1, "deal", analyse}, deal, remark),
          dealing};
}

}  // namespace tricklet
