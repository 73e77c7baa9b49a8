#include "formats/exchange/import.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "formats/exchange/file_type.h"
#include "formats/exchange/import_planned.h"
#include "formats/exchange/import_run.h"
#include "formats/exchange/look_at.h"
#include "formats/exchange/record_reader.h"
#include "formats/exchange/text_deals.h"
#include "formats/lin/lin_reader.h"
#include "formats/results/lin_file.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_scan.h"
#include "library/loss_text.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// The records of a whole season take a few MiB; more than this is no hand-record file.
constexpr std::size_t kMaxHandRecordBytes = std::size_t{256} * 1024 * 1024;

std::string UnreadableText(const fs::path& path) {
  return "Cannot read the file " + ShownPath(path);
}

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

/// Does what somebody has decided after a look at the file; nothing when it is to be imported
/// without one, since that would lose nothing, or since that is what was decided. `outside`: the
/// open library was not chosen for it, so that its boards are at stake too.
std::optional<ImportOutcome> ImportByLook(Session& session, const RecordSource& source,
                                          const RecordReader& reader, const Looker& look,
                                          bool outside) {
  if (!look.decide) return std::nullopt;
  ImportLook seen = LookAt(session, source, reader);
  const bool lossless = seen.plain.losesNothing;
  const bool atStake = outside && session.library.boardCount > 0;
  const bool asked = !lossless || atStake || look.always;
  if (seen.contents.sections.empty() || !asked) return std::nullopt;
  if (atStake) seen.choices.newLibrary = seen.suggestedLibrary;
  const auto choices = look.decide(seen);
  if (!choices) return Refused(session);
  ImportChoices same = seen.choices;
  same.newLibrary = choices->newLibrary;
  if (IsWithoutALook(*choices) || (lossless && *choices == same)) {
    if (choices->newLibrary.empty() || CreateLibrary(session, choices->newLibrary)) {
      return std::nullopt;
    }
    return Refused(session);
  }
  return StorePlanned(session, seen, *choices);
}

/// Imports what is in memory. `unreadable` is told when the reader throws.
ImportOutcome ImportSource(Session& session, RecordSource source, const std::string& unreadable,
                           const RecordReader& reader, const Looker& look, bool outside) {
  if (auto outcome = ImportByLook(session, source, reader, look, outside)) return *outcome;
  const fs::path file = source.path;
  ImportOutcome outcome = StoreText(session, std::move(source), unreadable, reader);
  outcome.file = file;
  return outcome;
}

/// The bytes of a hand-record file; nothing, after a message, when it cannot be read.
std::optional<RecordSource> ReadSource(Session& session, const fs::path& path) {
  try {
    return RecordSource{path, ReadWholeFile(path, kMaxHandRecordBytes)};
  } catch (const Fault&) {
    session.host.TellError(UnreadableText(path));
    return std::nullopt;
  }
}

/// A file with hand records of a known type.
struct TypedSource {
  RecordSource records;
  std::string type;
};

/// The file by its content; nothing, after a message, when it cannot be read or has no hand
/// records.
std::optional<TypedSource> ReadRecords(Session& session, const fs::path& path) {
  auto source = ReadSource(session, path);
  if (!source) return std::nullopt;
  std::string type = TypeOfRecords(FileTypeOf(path), source->bytes);
  if (!type.empty()) return TypedSource{std::move(*source), std::move(type)};
  session.host.TellError("There are no hand records in the file " + ShownPath(path));
  return std::nullopt;
}

ImportOutcome Unreadable(Session& session) {
  ListAndShow(session, session.board.boardNumber);
  return {.failed = true};
}

ImportOutcome ImportChosen(Session& session, const fs::path& path, const Importable& importable,
                           const Looker& look) {
  const std::string type = FileTypeOf(path);
  const auto& types = importable.types;
  if (std::find(types.begin(), types.end(), type) == types.end()) {
    session.host.TellError(importable.otherType);
    return Refused(session);
  }
  auto source = ReadSource(session, path);
  if (!source) return Unreadable(session);
  return ImportSource(session, std::move(*source), UnreadableText(path), ReaderOf(type), look,
                      false);
}

ImportLook LookOf(const Session& session, const fs::path& file, FileContents contents) {
  ImportLook look;
  look.file = file;
  look.contents = std::move(contents);
  look.there = session.library.boardPresent;
  look.library = session.ShownLibrary();
  look.partNames = [&session](const std::string& library, int parts) {
    return PartNames(session, library, parts);
  };
  look.suggestedLibrary = LibraryNameFor(session, PathText(file.stem()));
  return look;
}

/// The deals of a text have no other reader, so that their import is always a planned one.
ImportOutcome ImportDeals(Session& session, FileContents contents, const Looker& look) {
  if (!SettleChanges(session)) return {.refused = true};
  CountHands(session);
  const ImportLook seen = LookOf(session, {}, std::move(contents));
  const auto choices = look.decide ? look.decide(seen) : seen.choices;
  return choices ? StorePlanned(session, seen, *choices) : Refused(session);
}

ImportOutcome Import(Session& session, const Importable& importable, const Looker& look) {
  if (!MayImport(session, importable.results)) return {.refused = true};
  const auto path =
      session.host.ChooseOpenFile({importable.description, importable.types, fs::path()});
  if (path && !path->empty()) return ImportChosen(session, *path, importable, look);
  return Refused(session);
}

ImportOutcome ImportFile(Session& session, const fs::path& path, const Importable& importable,
                         const Looker& look) {
  // Nobody is asked about a file that is not there.
  if (!FileExists(path)) {
    session.host.TellError(UnreadableText(path));
    return Unreadable(session);
  }
  if (!MayImport(session, importable.results)) return {.refused = true};
  return ImportChosen(session, path, importable, look);
}

}  // namespace

ImportLook LookAt(const Session& session, const RecordSource& source, const RecordReader& reader) {
  ImportLook look = LookOf(session, source.path, ReadContents(reader.type, source.bytes));
  look.plain = WithoutLook(reader, source, look.contents);
  return look;
}

ImportOutcome Import(Session& session, const Looker& look) {
  return Import(session, HandRecords(), look);
}
ImportOutcome ImportFile(Session& session, const fs::path& path, const Looker& look) {
  return ImportFile(session, path, HandRecords(), look);
}
ImportOutcome ImportLin(Session& session, const Looker& look) {
  return Import(session, LinRecords(), look);
}
ImportOutcome ImportLinFile(Session& session, const fs::path& path, const Looker& look) {
  return ImportFile(session, path, LinRecords(), look);
}

ImportOutcome ImportLinText(Session& session, std::string_view text, const Looker& look) {
  if (!LooksLikeLin(text)) {
    session.host.TellError("There are no LIN records in this text");
    return {.refused = true};
  }
  if (!MayImport(session, Results::Replaced)) return {.refused = true};
  return ImportSource(session, {fs::path(), std::string(text)}, "Cannot read the LIN records",
                      ReaderOf("lin"), look, false);
}

ImportOutcome ImportText(Session& session, std::string_view text, const Looker& look) {
  const std::string type = TypeOfRecords("", text);
  if (type == "lin") return ImportLinText(session, text, look);
  if (!type.empty()) {
    if (!MayImport(session, Results::Go)) return {.refused = true};
    return ImportSource(session, {fs::path(), std::string(text)}, "Cannot read the hand records",
                        ReaderOf(type), look, false);
  }
  FileContents deals = ReadTextDeals(text);
  if (!deals.sections.empty()) return ImportDeals(session, std::move(deals), look);
  session.host.TellError("There are no hand records in this text");
  return {.refused = true};
}

bool HasHandRecords(std::string_view text) {
  return !TypeOfRecords("", text).empty() || DealInText(text) ||
         !ReadTextDeals(text).sections.empty();
}

std::vector<fs::path> ChooseHandRecords(Host& host) {
  return host.ChooseOpenFiles({"Hand Records", {"pbn", "dlm", "xml", "lin"}, fs::path(), true});
}

bool IsMissing(Host& host, const fs::path& path) {
  try {
    if (FileExists(path)) return false;
  } catch (const Fault&) {
    return false;  // reading it tells why
  }
  host.TellError(UnreadableText(path) + "\nThere is no such file");
  return true;
}

std::optional<ImportLook> LookAtFile(Session& session, const fs::path& path) {
  const auto source = ReadRecords(session, path);
  if (!source) return std::nullopt;
  return LookAt(session, source->records, ReaderOf(source->type));
}

ImportOutcome ImportAnyFile(Session& session, const fs::path& path, const Looker& look) {
  if (!look.decide) {
    return FileTypeOf(path) == "lin" ? ImportLinFile(session, path) : ImportFile(session, path);
  }
  auto source = ReadRecords(session, path);
  if (!source) return {.failed = true};
  if (!SettleChanges(session)) return {.refused = true};
  CountHands(session);
  return ImportSource(session, std::move(source->records), UnreadableText(path),
                      ReaderOf(source->type), look, true);
}

}  // namespace tricklet
