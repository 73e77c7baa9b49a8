#include "generate/generate.h"

#include <string>
#include <vector>

#include "core/bounded_list.h"
#include "generate/deal.h"

namespace tricklet {
namespace {

/// Deals board `number` until the person takes the deal; false when the run is to end.
bool DealBoard(Session& session, int number, const Constraints& constraints,
               const GenerateOptions& options, BoardStorer& storer) {
  const auto [first, last] = constraints.genBoards;
  Board& board = session.board;
  while (true) {
    storer.Begin(number);
    board.hands = GenerateDeal(constraints, board.Dealer(), session.random);
    const std::string text = "Generating board " + std::to_string(number);
    if (!session.host.Step(text, number - first, last - first + 1)) return false;
    const Answer answer = options.preview ? options.preview(board) : Answer::Yes;
    if (answer != Answer::No) return answer == Answer::Yes;
  }
}

/// False when the person has ended it.
bool DealRange(Session& session, const Constraints& constraints, const GenerateOptions& options,
               BoardStorer& storer, std::vector<int>& outside) {
  const auto [first, last] = constraints.genBoards;
  for (int number = first; number <= last; ++number) {
    if (!DealBoard(session, number, constraints, options, storer)) return false;
    if (!storer.Store()) return true;
    const Board& board = session.board;
    if (!MeetsConstraints(constraints, board.hands, board.Dealer())) outside.push_back(number);
  }
  return true;
}

/// "3 boards do not meet the constraints: 4, 9, 17", when there are many, only the first ones.
std::string OutsideText(const std::vector<int>& boards) {
  if (boards.empty()) return {};
  return std::to_string(boards.size()) + (boards.size() == 1 ? " board does" : " boards do") +
         " not meet the constraints: " + BoundedList(boards);
}

}  // namespace

GenerateOutcome Generate(Session& session, const Constraints& constraints,
                         const GenerateOptions& options) {
  const auto [first, last] = constraints.genBoards;
  std::vector<int> outside;
  const auto deal = [&](BoardStorer& storer) {
    return DealRange(session, constraints, options, storer, outside);
  };
  const auto remark = [&outside](const BoardRunOutcome&) { return OutsideText(outside); };
  return {RunOverBoards(session, {first, last, "generation", options.analyse}, deal, remark),
          outside};
}

}  // namespace tricklet
