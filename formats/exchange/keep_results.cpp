#include "formats/exchange/keep_results.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"

namespace tricklet {
namespace {

/// Two rooms play a match; tables of one room are compared by match points.
void SetScoring(LinFile& results) {
  const bool match = std::any_of(results.lin.begin(), results.lin.end(),
                                 [](const std::string& line) { return line.starts_with("qx|c"); });
  results.boardScoringMethod = match ? "IMPS" : "MATCH_POINTS";
  results.boardScoringAbb = match ? "IMP" : "MP";
}

/// Takes out the records of every board of which `stored` has one.
void LeaveOutStored(LinFile& results, const std::vector<std::string>& stored) {
  std::set<int> boards;
  for (const std::string& record : stored) boards.insert(BoardNumberOfLin(record));
  std::erase_if(results.lin, [&boards](const std::string& record) {
    return boards.contains(BoardNumberOfLin(record));
  });
}

/// Adds the records of the boards stored to "LIN.txt", where they replace earlier ones of the same
/// boards. Records of other boards stay, with their names and their scoring.
void KeepRecords(const Session& session, std::vector<std::string> records, LibraryWrite& write) {
  LinFile results = LoadLinData(session);
  LeaveOutStored(results, records);
  if (results.Empty()) results = LinFile();
  results.lin.insert(results.lin.end(), std::move_iterator(records.begin()),
                     std::move_iterator(records.end()));
  if (results.boardScoringMethod.empty()) SetScoring(results);
  StoreLinData(session, results, write);
}

/// Leaves out the results of boards that were not stored, which would stand beside older deals of
/// the same numbers: boards whose deal was impossible and, when the storing ended early, all above
/// the last one stored.
void LeaveOutUnstored(const LibrarySink& sink, Reading& reading) {
  const ReadResult& result = reading.result;
  const bool early = result.cancelled || sink.Failure();
  const int last = *sink.Stored().rbegin();
  const std::set<int> impossible(result.leftOut.impossible.begin(),
                                 result.leftOut.impossible.end());
  if (!early && impossible.empty()) return;
  std::erase_if(reading.results.lin, [&](const std::string& record) {
    const int board = BoardNumberOfLin(record);
    return (early && board > last) || impossible.contains(board);
  });
}

/// Leaves out the records of boards that `boards` has, or those of all others.
void LeaveOut(std::vector<std::string>& records, const std::set<int>& boards, bool others) {
  std::erase_if(records, [&](const std::string& record) {
    return boards.contains(BoardNumberOfLin(record)) != others;
  });
}

/// The results of boards that were stored, in the place of all that the library has of them.
void KeepPlanned(Session& session, LinFile found, LibrarySink& sink) {
  LeaveOut(found.lin, sink.Stored(), true);
  LinFile kept = LoadLinData(session);
  const std::size_t before = kept.lin.size();
  LeaveOut(kept.lin, sink.Stored(), false);
  if (before == 0 && found.Empty()) return;
  if (!kept.Empty()) {
    if (kept.lin.size() == before && found.Empty()) return;
    kept.lin.insert(kept.lin.end(), std::move_iterator(found.lin.begin()),
                    std::move_iterator(found.lin.end()));
    StoreLinData(session, kept, sink.Write());
  } else if (!found.Empty()) {
    RenewLinData(session, found, sink.Write());
  } else if (!RecycleLinData(session)) {
    throw Fault(FaultNumber::PathFileAccess, kResultsNotRecycled);
  }
}

}  // namespace

void KeepNotes(Session& session, LibrarySink& sink, const Reading& reading) {
  if (sink.Stored().empty()) return;
  const BoardNotes before = LoadNotes(session);
  BoardNotes notes = before;
  for (const int board : sink.Stored()) {
    notes.erase(board);
    const auto found = reading.notes.find(board);
    if (found != reading.notes.end()) notes.insert(*found);
  }
  if (notes != before) StoreNotes(notes, sink.Write());
}

void KeepResults(Session& session, Brings brings, LibrarySink& sink, Reading& reading) {
  if (sink.Stored().empty() || brings == Brings::Nothing) return;
  if (brings == Brings::Planned) {
    KeepPlanned(session, std::move(reading.results), sink);
    return;
  }
  if (brings == Brings::Records) {
    KeepRecords(session, std::move(reading.results.lin), sink.Write());
    return;
  }
  LeaveOutUnstored(sink, reading);
  RenewLinData(session, reading.results, sink.Write());
  if (!reading.extended.empty()) {
    sink.Write().Replace(session.LibraryPath() / "QENXML.xml", reading.extended);
  }
}

}  // namespace tricklet
