#include "formats/exchange/import_run.h"

#include <exception>
#include <set>
#include <string>
#include <utility>

#include "core/fault.h"
#include "core/text.h"
#include "formats/exchange/import_messages.h"
#include "formats/exchange/keep_results.h"
#include "formats/exchange/library_sink.h"
#include "formats/results/lin_boards.h"
#include "formats/results/lin_file.h"
#include "library/board_store.h"
#include "library/library_choice.h"
#include "library/library_scan.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;

/// What went wrong, if anything did.
struct Failures {
  std::optional<Fault> reading;
  std::optional<Fault> writing;
  std::set<int> unstored;   ///< boards known to be in the file that did not get into the library
  std::string notRecycled;  ///< what to tell of replaced boards that the recycle bin did not take
};

/// A session is read whole before its first board is stored, so all its boards are known; of other
/// files only the one that could not be stored is.
std::set<int> UnstoredBoards(const LibrarySink& sink, Brings brings, const Reading& reading) {
  std::set<int> unstored;
  if (sink.Unstored() != 0) unstored.insert(sink.Unstored());
  if (brings != Brings::Session) return unstored;
  for (const std::string& record : reading.results.lin) {
    const int number = BoardNumberOfLin(record);
    if (IsStorable(number) && !sink.Stored().contains(number)) unstored.insert(number);
  }
  return unstored;
}

Failures ReadAndStore(Session& session, RecordSource& source, const RecordReader& reader,
                      LibrarySink& sink, Reading& reading) {
  const WorkScope work(session.host);
  const BatchScope batch(session);
  Failures failures;
  try {
    reader.read(source, sink, reading);
  } catch (const std::exception& failure) {
    failures.writing = sink.Failure();
    if (!failures.writing) failures.reading = FaultFrom(failure);
    failures.unstored = UnstoredBoards(sink, reader.brings, reading);
  }
  const auto write = [&failures](const auto& step) {
    try {
      step();
    } catch (const std::exception& failure) {
      if (!failures.writing) failures.writing = FaultFrom(failure);
    }
  };
  write([&] { KeepResults(session, reader.brings, sink, reading); });
  write([&] { KeepNotes(session, sink, reading); });
  write([&] { failures.notRecycled = sink.Write().RecycleReplaced(session.host); });
  write([&] { sink.Write().Finish(); });
  return failures;
}

/// Makes the result count what was stored before a board could not be.
void CountStored(const LibrarySink& sink, ReadResult& result) {
  result.boardsSaved = sink.Count();
  result.firstBoard = sink.FirstStored();
  result.lastBoard = sink.Stored().empty() ? 0 : *sink.Stored().rbegin();
}

void TellIfAny(Host& host, const std::string& text) {
  if (!text.empty()) host.Tell(text);
}

void TellErrorIfAny(Host& host, const std::string& text) {
  if (!text.empty()) host.TellError(text);
}

void TellUnwritten(Host& host, const LibrarySink& sink, const RecordReader& reader,
                   const Fault& unwritten) {
  if (sink.FailedAtReadOnly()) {
    host.TellError(unwritten.Description());
  } else {
    reader.tellUnwritten(host, unwritten);
  }
}

void TellResult(Session& session, const LibrarySink& sink, const Reading& reading,
                const std::string& file) {
  Host& host = session.host;
  const ReadResult& result = reading.result;
  for (const std::string& message : result.messages) host.TellError(message);
  if (result.badLine) {
    host.TellError("Can't read this line:\n" + Showable(*result.badLine));
    host.Tell(BadLineText(result, file));
  }
  host.Tell(SavedText(result, session.ShownLibrary()));
  TellIfAny(host, reading.summary);
  TellIfAny(host, StoredText(result, sink.Stored()));
  TellIfAny(host, LeftOutText(result.leftOut));
  if (sink.ResultsStayed()) host.TellError(kResultsNotRecycled);
}

ImportOutcome TellUnreadable(Session& session, const std::string& unreadable, int boardBefore) {
  session.host.TellError(unreadable);
  ListAndShow(session, boardBefore);
  return {.failed = true};
}

/// The board to show after an import: the first of the file, or the first that could be stored.
int BoardToShow(const ReadResult& result, const LibrarySink& sink) {
  return IsStorable(result.firstBoard) ? result.firstBoard : sink.FirstStored();
}

}  // namespace

ImportOutcome StoreText(Session& session, RecordSource source, const std::string& unreadable,
                        const RecordReader& reader) {
  const int boardBefore = session.board.boardNumber;
  session.board.handChanged = false;
  auto write = LibraryWrite::Begin(session);
  if (!write) {
    LoadHand(session);
    return {.refused = true};
  }
  write->KeepReplaced(session, "import");
  LibrarySink sink(session, std::move(*write), reader.brings == Brings::Nothing);
  Reading reading;
  const Failures failures = ReadAndStore(session, source, reader, sink, reading);
  if (failures.reading) {
    ErrorReport(session.host, *failures.reading);
    ImportOutcome outcome = TellUnreadable(session, unreadable, boardBefore);
    TellIfAny(session.host, PartText(sink.Stored(), failures.unstored));
    TellErrorIfAny(session.host, failures.notRecycled);
    return outcome;
  }
  ReadResult& result = reading.result;
  if (sink.Failure()) CountStored(sink, result);
  if (failures.writing) TellUnwritten(session.host, sink, reader, *failures.writing);
  TellResult(session, sink, reading, ShownPath(source.path));
  if (sink.Failure()) TellIfAny(session.host, PartText(sink.Stored(), failures.unstored));
  TellErrorIfAny(session.host, failures.notRecycled);
  ListAndShow(session, result.boardsSaved > 0 ? BoardToShow(result, sink) : boardBefore);
  return {.boardsSaved = result.boardsSaved,
          .cancelled = result.cancelled,
          .failed = failures.writing || result.badLine || !result.messages.empty() ||
                    result.leftOut.Unreadable() || sink.ResultsStayed() ||
                    !failures.notRecycled.empty()};
}

}  // namespace tricklet
