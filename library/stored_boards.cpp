#include "library/stored_boards.h"

#include <algorithm>
#include <iterator>

#include "analysis/get_dds.h"
#include "core/statistics.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/tables.h"

namespace tricklet {
namespace {

/// Solves those that cannot be stored, a few at a time. False when the person has cancelled.
bool SolveInMemory(Session& session, Solver& solver, const std::vector<StoredBoard*>& boards,
                   std::string& failure) {
  constexpr std::size_t kAtOnce = 4;
  const WorkScope work(session.host);
  for (std::size_t next = 0; next < boards.size() && failure.empty(); next += kAtOnce) {
    const std::size_t end = std::min(next + kAtOnce, boards.size());
    const std::string number = std::to_string(boards[next]->board.boardNumber);
    if (!session.host.Step("Analysing board " + number, static_cast<int>(next),
                           static_cast<int>(boards.size()))) {
      return false;
    }
    std::vector<HandTable> deals;
    for (std::size_t i = next; i < end; ++i) deals.push_back(boards[i]->board.hands);
    const auto tables = SolveDeals(solver, deals, failure);
    for (std::size_t i = 0; i < tables.size(); ++i) {
      boards[next + i]->board.makeable = tables[i];
      boards[next + i]->board.makeableValid = true;
    }
  }
  return true;
}

}  // namespace

bool LacksTable(const StoredBoard& stored) {
  return stored.complete && !stored.board.makeableValid;
}

StoredBoard ReadStoredBoard(const Session& session, int number) {
  StoredBoard stored;
  stored.board.boardNumber = number;
  const bool readable = ReadBoardText(ReadWholeFile(session.BoardPath(number), kMaxBoardFileBytes),
                                      stored.board, TableReading::OnlyWhenComplete);
  stored.complete = readable && GetStats(stored.board.hands).allHandsComplete;
  return stored;
}

bool SupplyTables(Session& session, const std::vector<StoredBoard*>& boards, std::string& failure) {
  std::vector<StoredBoard*> lacking;
  std::copy_if(boards.begin(), boards.end(), std::back_inserter(lacking),
               [](const StoredBoard* stored) { return LacksTable(*stored); });
  if (lacking.empty()) return true;
  if (!session.getSolver) {
    failure = "There is no double-dummy solver";
    return true;
  }
  Solver& solver = session.getSolver();
  const AnalysisOutcome outcome = AnalyseBoards(session, solver, lacking.front()->board.boardNumber,
                                                lacking.back()->board.boardNumber, false);
  if (outcome.cancelled) return false;
  std::vector<StoredBoard*> unsolved;
  for (StoredBoard* stored : lacking) {
    *stored = ReadStoredBoard(session, stored->board.boardNumber);
    if (LacksTable(*stored)) unsolved.push_back(stored);
  }
  failure = solver.Missing();
  return unsolved.empty() || !failure.empty() || SolveInMemory(session, solver, unsolved, failure);
}

}  // namespace tricklet
