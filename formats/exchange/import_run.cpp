#include "formats/exchange/import_run.h"

#include <algorithm>
#include <exception>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "core/text.h"
#include "formats/results/lin_file.h"
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
  /// `recyclesResults`: they are of the boards that are replaced, and go with them.
  LibrarySink(Session& session, bool recyclesResults)
      : session_(session), recyclesResults_(recyclesResults) {}

  void Store(const Board& board) override {
    session_.board = board;
    StoreBoard(session_);
    if (firstStored_ != 0) return;
    firstStored_ = board.boardNumber;
    if (recyclesResults_) RecycleLinData(session_);  // the import does not depend on it
  }
  bool Begin(int boardNumber, int done, int total) override {
    return session_.host.Step("Importing board " + std::to_string(boardNumber), done, total);
  }
  int FirstStored() const { return firstStored_; }

 private:
  Session& session_;
  const bool recyclesResults_;
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

/// "2, 5, 7": each number once, and of more than ten the first ten.
std::string NumbersText(std::vector<int> numbers) {
  constexpr std::size_t kMost = 10;
  std::sort(numbers.begin(), numbers.end());
  numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
  std::string text;
  for (std::size_t i = 0; i < std::min(numbers.size(), kMost); ++i) {
    text += (i == 0 ? "" : ", ") + std::to_string(numbers[i]);
  }
  return text + (numbers.size() > kMost ? " ..." : "");
}

/// What the file holds and the library does not; empty when there is nothing to tell.
std::string LeftOutText(const ReadResult& result) {
  std::string text;
  if (const auto& deals = result.repeatedBoards; !deals.empty()) {
    const bool one = deals.size() == 1;
    text += one ? "1 deal was" : std::to_string(deals.size()) + " deals were";
    text += " left out because a board of the same number came before ";
    text += one ? "it" : "them";
    text += " in the file: " + NumbersText(deals);
  }
  if (const auto& boards = result.foreignAuctions; !boards.empty()) {
    text += text.empty() ? "" : "\n";
    text += boards.size() == 1 ? "1 auction was" : std::to_string(boards.size()) + " auctions were";
    text += " left out because the dealer of the record is not the board's: " + NumbersText(boards);
  }
  return text;
}

bool MayOverwriteLibrary(Session& session) {
  CountHands(session);
  if (session.library.boardCount == 0) return true;
  return session.host.Ask("Overwrite existing hands in library " + session.LibraryName() + "?",
                          "Hands already in library", Buttons::YesNo) == Answer::Yes;
}

/// Reads and stores; false when an unexpected failure ended it.
bool RunReader(Session& session, std::string text, const RecordReader& reader, LibrarySink& sink,
               ReadResult& result) {
  try {
    const WorkScope work(session.host);
    const BatchScope batch(session);
    const TextReader& read =
        std::visit([](const auto& kind) -> const TextReader& { return kind.read; }, reader);
    result = read(std::move(text), sink);
    return true;
  } catch (const std::exception& failure) {
    ErrorReport(session.host, FaultFrom(failure));
    return false;
  }
}

ImportOutcome TellUnreadable(Session& session, const std::string& unreadable, int boardBefore) {
  session.host.Tell(unreadable);
  ListAndShow(session, boardBefore);
  return {.failed = true};
}

/// The board to show after an import: the first of the file, or the first that could be stored.
int BoardToShow(const ReadResult& result, const LibrarySink& sink) {
  return IsStorable(result.firstBoard) ? result.firstBoard : sink.FirstStored();
}

}  // namespace

bool MayImport(Session& session) {
  return SettleChanges(session) && MayOverwriteLibrary(session);
}

ImportOutcome StoreText(Session& session, std::string text, const std::string& unreadable,
                        const RecordReader& reader) {
  const int boardBefore = session.board.boardNumber;
  ReadResult result;
  LibrarySink sink(session, std::holds_alternative<DealReader>(reader));
  session.board.handChanged = false;
  if (!RunReader(session, std::move(text), reader, sink, result)) {
    return TellUnreadable(session, unreadable, boardBefore);
  }
  if (result.badLine) session.host.Tell("Can't read this line:\n" + Showable(*result.badLine));
  session.host.Tell(ResultText(session, result));
  if (const std::string leftOut = LeftOutText(result); !leftOut.empty()) session.host.Tell(leftOut);
  ListAndShow(session, result.boardsSaved > 0 ? BoardToShow(result, sink) : boardBefore);
  return {.boardsSaved = result.boardsSaved,
          .cancelled = result.cancelled,
          .failed = result.failed || result.badLine};
}

ImportOutcome StoreFile(Session& session, const fs::path& path, const RecordReader& reader) {
  const std::string unreadable = "Cannot read the file " + PathText(path);
  std::string text;
  try {
    text = ReadWholeFile(path, kMaxHandRecordBytes);
  } catch (const Fault&) {
    return TellUnreadable(session, unreadable, session.board.boardNumber);
  }
  return StoreText(session, std::move(text), unreadable, reader);
}

}  // namespace tricklet
