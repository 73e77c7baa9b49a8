#include "formats/exchange/import.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/fault.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import_run.h"
#include "formats/exchange/record_reader.h"
#include "formats/lin/lin_reader.h"
#include "formats/results/lin_file.h"
#include "library/board_store.h"
#include "library/library_scan.h"
#include "library/loss_text.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// What an import does with the results that the library keeps.
enum class Results : std::uint8_t {
  Go,       ///< all of them
  Replaced  ///< board by board
};

/// What one of the commands imports.
struct Importable {
  const char* description;
  std::vector<std::string> types;
  const char* otherType;  // the message for a file of any other type
  Results results;
};

const Importable& HandRecords() {
  static const Importable kHandRecords{"Hand Records",
                                       {"pbn", "dlm", "xml"},
                                       "The file must be of type pbn, dlm or xml",
                                       Results::Go};
  return kHandRecords;
}

const Importable& LinRecords() {
  static const Importable kLinRecords{
      "LIN records", {"lin"}, "The file must be of type lin", Results::Replaced};
  return kLinRecords;
}

/// What becomes of the results that the library keeps; empty when it keeps none, or when they
/// cannot be read.
std::string ResultsAtStake(const Session& session, Results results) {
  std::size_t kept = 0;
  try {
    kept = LoadLinData(session).lin.size();
  } catch (const Fault&) {
    return "";
  }
  if (kept == 0) return "";
  const std::string text = kept == 1
                               ? "\nOne result is kept with them: it"
                               : "\n" + std::to_string(kept) + " results are kept with them: they";
  return text + (results == Results::Go ? " would go to the recycle bin."
                                        : " would be replaced where the file has the same board.");
}

/// The file is not chosen yet, so only what is there can be told.
bool MayOverwriteLibrary(Session& session, Results results) {
  CountHands(session);
  if (session.library.boardCount == 0) return true;
  const std::string detail = BoardsAtStake(session.library, kFirstBoardNumber, kLastBoardNumber,
                                           "would be replaced where the file has the same number") +
                             FateOfReplaced(session.settings);
  return session.host.Ask(
             {.text = "Overwrite existing hands in library " + session.ShownLibrary() + "?",
              .title = "Hands already in library",
              .safe = Answer::No,
              .detail = detail + ResultsAtStake(session, results)}) == Answer::Yes;
}

/// The questions before any file is touched. False when the person said no; the board is then as it
/// is stored, or still has its changes.
bool MayImport(Session& session, Results results) {
  return SettleChanges(session) && MayOverwriteLibrary(session, results);
}

ImportOutcome Refused(Session& session) {
  // A board whose changes the person gave up is shown as it is stored.
  LoadHand(session);
  return {.refused = true};
}

ImportOutcome ImportChosen(Session& session, const fs::path& path, const Importable& importable) {
  const std::string type = FileTypeOf(path);
  const auto& types = importable.types;
  if (std::find(types.begin(), types.end(), type) != types.end()) {
    ImportOutcome outcome = StoreFile(session, path, ReaderOf(type));
    outcome.file = path;
    return outcome;
  }
  session.host.TellError(importable.otherType);
  return Refused(session);
}

ImportOutcome Import(Session& session, const Importable& importable) {
  if (!MayImport(session, importable.results)) return {.refused = true};
  const auto path =
      session.host.ChooseOpenFile({importable.description, importable.types, fs::path()});
  if (path && !path->empty()) return ImportChosen(session, *path, importable);
  return Refused(session);
}

ImportOutcome ImportFile(Session& session, const fs::path& path, const Importable& importable) {
  if (!MayImport(session, importable.results)) return {.refused = true};
  return ImportChosen(session, path, importable);
}

}  // namespace

ImportOutcome Import(Session& session) {
  return Import(session, HandRecords());
}
ImportOutcome ImportFile(Session& session, const fs::path& path) {
  return ImportFile(session, path, HandRecords());
}
ImportOutcome ImportLin(Session& session) {
  return Import(session, LinRecords());
}
ImportOutcome ImportLinFile(Session& session, const fs::path& path) {
  return ImportFile(session, path, LinRecords());
}

ImportOutcome ImportLinText(Session& session, std::string_view text) {
  if (!LooksLikeLin(text)) {
    session.host.TellError("There are no LIN records in this text");
    return {.refused = true};
  }
  if (!MayImport(session, Results::Replaced)) return {.refused = true};
  return StoreText(session, {fs::path(), std::string(text)}, "Cannot read the LIN records",
                   ReaderOf("lin"));
}

ImportOutcome ImportAnyFile(Session& session, const fs::path& path) {
  return FileTypeOf(path) == "lin" ? ImportLinFile(session, path) : ImportFile(session, path);
}

}  // namespace tricklet
