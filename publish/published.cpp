#include "publish/published.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "library/board_notes.h"
#include "library/library_scan.h"
#include "review/report_source.h"
#include "review/session_review.h"

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
    const bool stored = session.library.boardPresent.at(static_cast<std::size_t>(number));
    if (!stored || !range.Has(number)) continue;
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

/// Only the boards that are published.
void KeepPublished(const Published& published, ReportSource& source) {
  const auto isPublished = [&published](int number) {
    return std::any_of(
        published.boards.begin(), published.boards.end(),
        [number](const PublishedBoard& one) { return one.board.boardNumber == number; });
  };
  std::erase_if(source.travellers,
                [&](const Traveller& traveller) { return !isPublished(traveller.boardNumber); });
}

}  // namespace

bool AddReview(Session& session, Published& published, std::string& failure) {
  if (published.results.Empty()) {
    failure = kNothingToReport;
    return true;
  }
  if (!session.getSolver) {
    failure = "There is no double-dummy solver";
    return true;
  }
  Solver& solver = session.getSolver();
  failure = solver.Missing();
  if (!failure.empty()) return true;
  auto source = GatherReport(session, false);
  if (!source) return true;
  SessionReview review = ReviewSession(session, solver, *source, {});
  if (review.cancelled) return false;
  failure = review.failure;
  if (!failure.empty()) return true;
  KeepPublished(published, *source);
  SessionReport report = MakeSessionReport(*source, review.answers);
  published.review = PublishedReview{std::move(report), std::move(review.answers)};
  return true;
}

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
