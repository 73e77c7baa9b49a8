#include "formats/import.h"

#include <algorithm>
#include <array>
#include <exception>

#include "core/fault.h"
#include "core/text.h"
#include "formats/file_type.h"
#include "formats/lin_file.h"
#include "formats/pbn_reader.h"
#include "library/board_store.h"
#include "library/file_io.h"
#include "library/library_store.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// The records of a whole season take a few MiB; more than this is no hand-record file.
constexpr std::size_t kMaxHandRecordBytes = std::size_t{256} * 1024 * 1024;

/// Stores each board in the current library and shows how far the reading has come.
class LibrarySink : public BoardSink {
 public:
  explicit LibrarySink(Session& session) : session_(session) {}

  void Store(const Board& board) override {
    if (firstStored_ == 0) {
      // Imported boards carry no results, so those of the boards that they replace go. The import
      // does not depend on it.
      RecycleLinData(session_);
      firstStored_ = board.BoardNumber;
    }
    session_.board = board;
    StoreBoard(session_);
  }
  bool Begin(int boardNumber, int done, int total) override {
    return session_.host.Step("Importing board " + std::to_string(boardNumber), done, total);
  }
  int FirstStored() const { return firstStored_; }

 private:
  Session& session_;
  int firstStored_ = 0;
};

std::string ResultText(const Session& session, const ReadResult& result) {
  std::string text = "No hands have";
  if (result.boardsSaved == 1) {
    text = "Hand " + std::to_string(result.firstBoard) + " has";
  } else if (result.boardsSaved > 1) {
    text = std::to_string(result.boardsSaved) + " hands (" + std::to_string(result.firstBoard) +
           "-" + std::to_string(result.lastBoard) + ") have";
  }
  return text + " been saved to the library - " + session.LibraryName();
}

bool MayOverwriteLibrary(Session& session) {
  CountHands(session);
  if (session.library.BoardCount == 0) return true;
  return session.host.Ask("Overwrite existing hands in library " + session.LibraryName() + "?",
                          "Hands already in library", Buttons::YesNo) == Answer::Yes;
}

/// A type that can be read; else tells so.
bool AcceptType(Session& session, const std::string& type) {
  constexpr std::array<std::string_view, 3> kKnown{"dlm", "pbn", "xml"};
  if (type == "pbn") return true;
  const bool known = std::find(kKnown.begin(), kKnown.end(), type) != kKnown.end();
  session.host.Tell(known ? "This version of Tricklet cannot read " + type + " files yet"
                          : "The file must be of type pbn, dlm or xml");
  return false;
}

/// Reads and stores; false when an unexpected failure ended it.
bool RunReader(Session& session, const fs::path& path, LibrarySink& sink, ReadResult& result) {
  const BatchScope batch(session);
  std::string text;
  try {
    text = ReadWholeFile(path, kMaxHandRecordBytes);
  } catch (const Fault&) {
    return false;
  }
  try {
    const WorkScope work(session.host);
    result = ReadPBN(text, sink);
    return true;
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    return false;
  }
}

/// Makes board `number` the current one and lists the library again.
void ShowLibrary(Session& session, int number) {
  session.board.BoardNumber = number;
  FindFiles(session);
  session.board.BoardNumber = std::clamp(number, kFirstBoardNumber, session.library.MaxBoard);
  LoadHand(session);
}

ImportOutcome StoreFile(Session& session, const fs::path& path) {
  const int boardBefore = session.board.BoardNumber;
  ReadResult result;
  LibrarySink sink(session);
  ImportOutcome outcome;
  session.board.HandChanged = false;
  outcome.failed = !RunReader(session, path, sink, result);
  outcome.boardsSaved = result.boardsSaved;
  outcome.cancelled = result.cancelled;
  if (outcome.failed) {
    session.host.Tell("Cannot read the file " + PathText(path));
    ShowLibrary(session, boardBefore);
    return outcome;
  }
  if (result.badLine) {
    outcome.failed = true;
    session.host.Tell("Can't read this line:\n" + Showable(*result.badLine));
  }
  session.host.Tell(ResultText(session, result));
  ShowLibrary(session, result.boardsSaved > 0 ? sink.FirstStored() : boardBefore);
  return outcome;
}

ImportOutcome ImportChosen(Session& session, const fs::path& path) {
  if (AcceptType(session, FileTypeOf(path))) return StoreFile(session, path);
  // A board whose changes the person gave up is shown as it is stored.
  LoadHand(session);
  return {.refused = true};
}

/// The questions before any file is touched.
bool MayImport(Session& session) {
  if (CheckSaveChanges(session) == Answer::Cancel) return false;
  if (MayOverwriteLibrary(session)) return true;
  LoadHand(session);
  return false;
}

}  // namespace

ImportOutcome Import(Session& session) {
  if (!MayImport(session)) return {.refused = true};
  const auto path = session.host.ChooseOpenFile({"Hand Records", {"pbn", "dlm", "xml"}, {}});
  if (!path || path->empty()) {
    LoadHand(session);
    return {.refused = true};
  }
  return ImportChosen(session, *path);
}

ImportOutcome ImportFile(Session& session, const fs::path& path) {
  if (!MayImport(session)) return {.refused = true};
  return ImportChosen(session, path);
}

}  // namespace tricklet
