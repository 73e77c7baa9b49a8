#include "formats/import_lin.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "formats/file_type.h"
#include "formats/import_run.h"
#include "formats/lin_file.h"
#include "formats/lin_reader.h"
#include "library/board_store.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// Two rooms play a match; tables of one room are compared by match points.
void SetScoring(LinFile& results) {
  const bool match = std::any_of(results.Lin.begin(), results.Lin.end(),
                                 [](const std::string& line) { return line.starts_with("qx|c"); });
  results.BoardScoringMethod = match ? "IMPS" : "MATCH_POINTS";
  results.BoardScoringAbb = match ? "IMP" : "MP";
}

/// Keeps the records of the boards stored where those of club results are kept.
void KeepRecords(const Session& session, LinFile& results) {
  if (results.Lin.empty()) return;
  SetScoring(results);
  StoreLinData(session, results);
}

ResultsReader ReaderInto(const Session& session) {
  return {[&session](std::string_view text, BoardSink& sink) {
    LinFile results;
    ReadResult result;
    try {
      result = ReadLIN(text, sink, results.Lin);
    } catch (const Fault&) {
      KeepRecords(session, results);  // the boards before the one that failed are stored
      throw;
    }
    KeepRecords(session, results);
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
