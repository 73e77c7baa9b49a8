#include "publish/published.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "analysis/get_dds.h"
#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/statistics.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/board_notes.h"
#include "library/library_scan.h"
#include "library/tables.h"

namespace tricklet {
namespace {

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

/// The notes and results of the library, each with its board, and par.
void AddWhatIsKnown(Session& session, Published& published) {
  published.results = LoadLinData(session);
  const BoardNotes notes = LoadNotes(session);
  std::map<int, Traveller> travellers;
  for (Traveller& traveller : MakeTravellers(published.results)) {
    const int number = traveller.boardNumber;
    travellers.emplace(number, std::move(traveller));
  }
  for (PublishedBoard& one : published.boards) {
    const Board& board = one.board;
    if (one.complete && board.makeableValid)
      one.par = ComputePar(board.makeable, board.Dealer(), board.Vulnerability());
    const auto note = notes.find(board.boardNumber);
    if (note != notes.end()) one.notes = note->second;
    one.traveller.boardNumber = board.boardNumber;
    const auto traveller = travellers.find(board.boardNumber);
    if (traveller != travellers.end()) one.traveller = std::move(traveller->second);
  }
}

std::optional<Published> Gather(Session& session, const BoardRange& range, bool tables) {
  Published published;
  CountHands(session);
  for (int number = range.first; number <= range.last; ++number) {
    if (session.library.boardPresent.at(static_cast<std::size_t>(number)))
      published.boards.push_back(ReadStored(session, number));
  }
  if (published.boards.empty()) {
    session.host.TellError(kNothingToPublish);
    return std::nullopt;
  }
  if (tables && !AddTables(session, published.boards, published.whyNoTables)) return std::nullopt;
  AddWhatIsKnown(session, published);
  return published;
}

}  // namespace

Ranking RankingOf(const Published& published) {
  std::vector<const Traveller*> travellers;
  travellers.reserve(published.boards.size());
  for (const PublishedBoard& one : published.boards) travellers.push_back(&one.traveller);
  return MakeRanking(published.results, travellers);
}

bool LacksTable(const PublishedBoard& published) {
  return published.complete && !published.board.makeableValid;
}

std::string RemarkOn(const Published& published, bool tables) {
  std::set<int> incomplete;
  for (const PublishedBoard& one : published.boards) {
    if (!one.complete) incomplete.insert(one.board.boardNumber);
  }
  std::string remark = tables ? published.whyNoTables : std::string();
  if (incomplete.empty()) return remark;
  if (!remark.empty()) remark += "\n";
  const bool single = incomplete.size() == 1;
  return remark + (single ? "The deal of board " : "The deals of boards ") +
         RangesText(incomplete) + (single ? " is" : " are") + " incomplete";
}

std::optional<Published> GatherBoards(Session& session, const BoardRange& range, bool tables) {
  try {
    return Gather(session, range, tables);
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return std::nullopt;
  }
}

}  // namespace tricklet
