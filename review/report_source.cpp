#include "review/report_source.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/bounded_list.h"
#include "core/fault.h"
#include "library/library_scan.h"
#include "library/stored_boards.h"

namespace tricklet {
namespace {

/// "Board 5 has no table" or "Boards 5-7 have no table".
std::string BoardsText(const std::set<int>& numbers, const std::string& one,
                       const std::string& several) {
  return (numbers.size() == 1 ? "Board " : "Boards ") + RangesText(numbers) + " " +
         (numbers.size() == 1 ? one : several);
}

/// Says which boards cannot be compared with par, and why.
void AddRemarks(const std::set<int>& incomplete, const std::set<int>& withoutTable,
                const std::string& failure, std::vector<std::string>& remarks) {
  if (!incomplete.empty()) {
    remarks.push_back(BoardsText(incomplete, "is no complete deal in the library: there is no par",
                                 "are no complete deals in the library: there is no par"));
  }
  if (!withoutTable.empty()) {
    remarks.push_back(BoardsText(withoutTable, "has no double-dummy table: there is no par",
                                 "have no double-dummy table: there is no par") +
                      (failure.empty() ? "" : " (" + failure + ")"));
  }
}

std::optional<ReportSource> Gather(Session& session, bool tables) {
  ReportSource source;
  source.results = LoadLinData(session);
  source.travellers = MakeTravellers(source.results);
  if (source.travellers.empty()) {
    session.host.TellError(kNothingToReport);
    return std::nullopt;
  }
  CountHands(session);
  std::vector<StoredBoard> boards;
  std::set<int> incomplete;
  for (const Traveller& traveller : source.travellers) {
    const int number = traveller.boardNumber;
    if (session.library.boardPresent.at(static_cast<std::size_t>(number))) {
      boards.push_back(ReadStoredBoard(session, number));
    }
    if (boards.empty() || boards.back().board.boardNumber != number || !boards.back().complete) {
      incomplete.insert(number);
    }
  }
  std::vector<StoredBoard*> wanted;
  wanted.reserve(boards.size());
  for (StoredBoard& stored : boards) wanted.push_back(&stored);
  std::string failure;
  if (tables && !SupplyTables(session, wanted, failure)) return std::nullopt;
  std::set<int> withoutTable;
  for (StoredBoard& stored : boards) {
    if (!stored.complete) continue;
    const int number = stored.board.boardNumber;
    if (!stored.board.makeableValid) withoutTable.insert(number);
    source.boards.emplace(number, std::move(stored.board));
  }
  AddRemarks(incomplete, withoutTable, failure, source.remarks);
  return source;
}

}  // namespace

std::optional<ReportSource> GatherReport(Session& session, bool tables) {
  try {
    return Gather(session, tables);
  } catch (const Fault& fault) {
    session.host.TellError(fault.Description());
    return std::nullopt;
  }
}

}  // namespace tricklet
