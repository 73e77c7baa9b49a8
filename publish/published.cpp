#include "publish/published.h"

#include <algorithm>
#include <set>
#include <utility>

#include "analysis/get_dds.h"
#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/statistics.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/library_scan.h"
#include "library/tables.h"

namespace tricklet {
namespace {

bool LacksTable(const PublishedBoard& published) {
  return published.complete && !published.board.makeableValid;
}

/// A board as it is stored; one whose file is broken as far as it can be read. Throws `Fault` when
/// the disk does not give it.
PublishedBoard ReadStored(const Session& session, int number) {
  PublishedBoard published;
  published.board.boardNumber = number;
  const bool readable = ReadBoardText(ReadWholeFile(session.BoardPath(number), kMaxBoardFileBytes),
                                      published.board, TableReading::OnlyWhenComplete);
  published.complete = readable && GetStats(published.board.hands).allHandsComplete;
  return published;
}

/// Solves those that cannot be stored, a few at a time. False when the person has cancelled.
bool SolveInMemory(Session& session, Solver& solver, std::vector<PublishedBoard*> boards,
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

/// Gives tables to the boards that lack one. False when the person has cancelled; what goes wrong
/// otherwise is in `failure`.
bool AddTables(Session& session, std::vector<PublishedBoard>& boards, std::string& failure) {
  if (std::none_of(boards.begin(), boards.end(), LacksTable)) return true;
  if (!session.getSolver) {
    failure = "There is no double-dummy solver";
    return true;
  }
  Solver& solver = session.getSolver();
  const AnalysisOutcome outcome = AnalyseBoards(session, solver, boards.front().board.boardNumber,
                                                boards.back().board.boardNumber, false);
  if (outcome.cancelled) return false;
  std::vector<PublishedBoard*> unsolved;
  for (PublishedBoard& published : boards) {
    if (!LacksTable(published)) continue;
    published = ReadStored(session, published.board.boardNumber);
    if (LacksTable(published)) unsolved.push_back(&published);
  }
  failure = solver.Missing();
  return unsolved.empty() || !failure.empty() ||
         SolveInMemory(session, solver, std::move(unsolved), failure);
}

/// What the person is told at the end.
std::string RemarkOn(const std::vector<PublishedBoard>& boards, const std::string& failure) {
  std::set<int> incomplete;
  for (const PublishedBoard& published : boards) {
    if (!published.complete) incomplete.insert(published.board.boardNumber);
  }
  std::string remark = failure;
  if (!incomplete.empty()) {
    if (!remark.empty()) remark += "\n";
    remark += (incomplete.size() == 1 ? "The deal of board " : "The deals of boards ") +
              RangesText(incomplete) + (incomplete.size() == 1 ? " is" : " are") + " incomplete";
  }
  return remark;
}

/// The notes and results of the library, each with its board, and par.
void AddWhatIsKnown(Session& session, Published& published) {
  published.results = LoadLinData(session);
  const BoardNotes notes = LoadNotes(session);
  for (PublishedBoard& one : published.boards) {
    const Board& board = one.board;
    if (one.complete && board.makeableValid)
      one.par = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
    const auto note = notes.find(board.boardNumber);
    if (note != notes.end()) one.notes = note->second;
    one.traveller = MakeTraveller(published.results, board.boardNumber);
  }
}

std::optional<Gathered> Gather(Session& session, const BoardRange& range, bool tables) {
  Gathered gathered;
  std::vector<PublishedBoard>& boards = gathered.published.boards;
  CountHands(session);
  for (int number = range.first; number <= range.last; ++number) {
    if (session.library.boardPresent.at(static_cast<std::size_t>(number)))
      boards.push_back(ReadStored(session, number));
  }
  if (boards.empty()) {
    session.host.TellError(kNothingToPublish);
    return std::nullopt;
  }
  std::string failure;
  if (tables && !AddTables(session, boards, failure)) return std::nullopt;
  AddWhatIsKnown(session, gathered.published);
  gathered.remark = RemarkOn(boards, failure);
  return gathered;
}

}  // namespace

Ranking RankingOf(const Published& published) {
  std::vector<const Traveller*> travellers;
  travellers.reserve(published.boards.size());
  for (const PublishedBoard& one : published.boards) travellers.push_back(&one.traveller);
  return MakeRanking(published.results, travellers);
}

std::optional<Gathered> GatherBoards(Session& session, const BoardRange& range, bool tables) {
  try {
    return Gather(session, range, tables);
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return std::nullopt;
  }
}

}  // namespace tricklet
