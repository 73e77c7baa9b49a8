#include "formats/exchange/import_lin.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import_run.h"
#include "formats/lin/lin_reader.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "library/board_store.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

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
  if (records.empty()) return;
  LinFile results = LoadLinData(session);
  LeaveOutStored(results, records);
  if (results.Empty()) results = LinFile();
  results.lin.insert(results.lin.end(), std::move_iterator(records.begin()),
                     std::move_iterator(records.end()));
  if (results.boardScoringMethod.empty()) SetScoring(results);
  StoreLinData(session, results);
}

ResultsReader ReaderInto(const Session& session) {
  return {[&session](std::string_view text, BoardSink& sink) {
    std::vector<std::string> records;
    ReadResult result;
    try {
      result = ReadLIN(text, sink, records);
    } catch (const Fault&) {
      KeepRecords(session, std::move(records));  // the boards before the one that failed are stored
      throw;
    }
    KeepRecords(session, std::move(records));
    return result;
  }};
}

ImportOutcome ImportChosen(Session& session, const fs::path& path) {
  if (FileTypeOf(path) == "lin") return StoreFile(session, path, ReaderInto(session));
  session.host.Tell("The file must be of type lin");
  LoadHand(session);
  return {.refused = true};
}

}  // namespace

ImportOutcome ImportLin(Session& session) {
  if (!MayImport(session)) return {.refused = true};
  const auto path = session.host.ChooseOpenFile({"LIN records", {"lin"}, {}});
  if (path && !path->empty()) return ImportChosen(session, *path);
  LoadHand(session);
  return {.refused = true};
}

ImportOutcome ImportLinFile(Session& session, const fs::path& path) {
  if (!MayImport(session)) return {.refused = true};
  return ImportChosen(session, path);
}

ImportOutcome ImportLinText(Session& session, std::string_view text) {
  if (!LooksLikeLin(text)) {
    session.host.Tell("There are no LIN records in this text");
    return {.refused = true};
  }
  if (!MayImport(session)) return {.refused = true};
  return StoreText(session, std::string(text), "Cannot read the LIN records", ReaderInto(session));
}

ImportOutcome ImportAnyFile(Session& session, const fs::path& path) {
  return FileTypeOf(path) == "lin" ? ImportLinFile(session, path) : ImportFile(session, path);
}

}  // namespace tricklet
