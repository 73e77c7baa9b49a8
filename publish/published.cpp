#include "publish/published.h"

#include <map>
#include <set>
#include <utility>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "library/board_notes.h"
#include "library/library_scan.h"

namespace tricklet {
namespace {

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
    if (!session.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
    static_cast<StoredBoard&>(published.boards.emplace_back()) = ReadStoredBoard(session, number);
  }
  if (published.boards.empty()) {
    session.host.TellError(kNothingToPublish);
    return std::nullopt;
  }
  if (tables) {
    std::vector<StoredBoard*> boards;
    boards.reserve(published.boards.size());
    for (PublishedBoard& one : published.boards) boards.push_back(&one);
    if (!SupplyTables(session, boards, published.whyNoTables)) return std::nullopt;
  }
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
