#include "formats/exchange/keep_results.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "library/file_io.h"

namespace tricklet {
namespace {

/// Two rooms play a match; tables of one room are compared by match points.
void SetScoring(LinFile& results) {
  const bool match = std::any_of(results.lin.begin(), results.lin.end(),
                                 [](const std::string& line) { return line.starts_with("qx|c"); });
  results.boardScoringMethod = match ? "IMPS" : "MATCH_POINTS";
  results.boardScoringAbb = match ? "IMP" : "MP";
}

/// Without the records of the boards that `stored` has records of.
void LeaveOutStored(LinFile& results, const std::vector<std::string>& stored) {
  std::set<int> boards;
  for (const std::string& record : stored) boards.insert(BoardNumberOfLin(record));
  std::erase_if(results.lin, [&boards](const std::string& record) {
    return boards.contains(BoardNumberOfLin(record));
  });
}

/// Keeps the records of the boards stored where those of club results are kept. Those of other
/// boards that are kept there stay, with their names and their scoring.
void KeepRecords(const Session& session, std::vector<std::string> records) {
  LinFile results = LoadLinData(session);
  LeaveOutStored(results, records);
  if (results.Empty()) results = LinFile();
  results.lin.insert(results.lin.end(), std::move_iterator(records.begin()),
                     std::move_iterator(records.end()));
  if (results.boardScoringMethod.empty()) SetScoring(results);
  StoreLinData(session, results);
}

/// Results of boards that were not stored would stand beside older deals of the same numbers, so
/// they are left out: of boards whose deal was, and of those after the last one when the storing
/// ended early.
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

}  // namespace

void KeepResults(const Session& session, Brings brings, const LibrarySink& sink, Reading& reading) {
  if (sink.Stored().empty() || brings == Brings::Nothing) return;
  if (brings == Brings::Records) {
    KeepRecords(session, std::move(reading.results.lin));
    return;
  }
  LeaveOutUnstored(sink, reading);
  StoreLinData(session, reading.results);
  if (!reading.extended.empty()) {
    ReplaceWholeFile(session.LibraryPath() / "QENXML.xml", reading.extended);
  }
}

}  // namespace tricklet
