#include "ui/background/board_summaries.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "core/fault.h"
#include "disk/file_io.h"
#include "library/board_file.h"

namespace tricklet::ui {

namespace fs = std::filesystem;

namespace {

/// Few enough for the rows that come into sight not to wait for the others.
constexpr std::size_t kBoardsInBatch = 32;
/// About as many boards to either side of the current one as a list may show.
constexpr int kAroundCurrent = 15;

constexpr std::size_t Place(int boardNumber) {
  return static_cast<std::size_t>(boardNumber);
}

}  // namespace

/// One file, as it was known and as it is.
struct BoardSummaries::Look {
  int boardNumber = 0;
  Stamp stamp;
  std::optional<BoardSummary> summary;
  bool changed = false;
};

struct BoardSummaries::Batch {
  fs::path folder;
  std::vector<Look> looks;
};

BoardSummaries::BoardSummaries(const Session& session, QObject* parent)
    : QObject(parent), session_(session), results_(std::make_shared<const ResultsByBoard>()) {}

BoardSummaries::~BoardSummaries() = default;

void BoardSummaries::Show(const std::shared_ptr<const LinFile>& results) {
  const fs::path folder = session_.LibraryPath();
  if (folder != folder_) {
    folder_ = folder;
    known_.fill({});
    toLookAt_.fill(false);
    // The list will show the current board, wherever it stood before.
    SetSeen(session_.board.boardNumber - kAroundCurrent,
            session_.board.boardNumber + kAroundCurrent);
    results_ = std::make_shared<const ResultsByBoard>();
  }
  for (int n = kFirstBoardNumber; n <= kLastBoardNumber; ++n) {
    if (IsStored(n) && !known_.at(Place(n)).summary) toLookAt_.at(Place(n)) = true;
  }
  KeepCurrent();
  if (results != resultFile_) ShowResults(results);
  PostNext();
}

/// What the session knows of its board need not be read again when that is left.
void BoardSummaries::KeepCurrent() {
  const Board& board = session_.board;
  if (!IsStorable(board.boardNumber) || !IsStored(board.boardNumber) || board.handChanged) return;
  auto& summary = known_.at(Place(board.boardNumber)).summary;
  if (!summary || summary->readable) summary = SummaryOf(board);
}

ListedBoard BoardSummaries::At(int boardNumber) const {
  ListedBoard listed{.boardNumber = boardNumber, .stored = IsStored(boardNumber)};
  const Board& board = session_.board;
  const bool current = board.boardNumber == boardNumber;
  listed.changed = current && board.handChanged;
  if (listed.stored) listed.summary = known_.at(Place(boardNumber)).summary;
  const bool readable = !listed.summary || listed.summary->readable;
  if (listed.changed || (current && listed.stored && readable)) listed.summary = SummaryOf(board);
  const CallList calls = listed.summary ? listed.summary->calls : CallList();
  if (const TableResult* result = ResultOf(*results_, boardNumber, calls)) {
    listed.score = result->score;
    listed.ruling = result->adjusted;
  } else if (listed.summary && listed.summary->contract == kAllPass) {
    listed.score = 0;
  }
  return listed;
}

bool BoardSummaries::IsStored(int boardNumber) const {
  return session_.library.boardPresent.at(Place(boardNumber));
}

void BoardSummaries::SetSeen(int first, int last) {
  firstSeen_ = std::clamp(first, kFirstBoardNumber, kLastBoardNumber);
  lastSeen_ = std::clamp(last, firstSeen_, kLastBoardNumber);
}

void BoardSummaries::LookAt(int first, int last) {
  std::fill(toLookAt_.begin() + first, toLookAt_.begin() + last + 1, true);
  PostNext();
}

void BoardSummaries::PostNext() {
  if (reading_ || session_.batchRunning) return;
  const auto batch = std::make_shared<Batch>();
  batch->folder = folder_;
  const auto take = [&](int first, int last) {
    for (int n = first; n <= last && batch->looks.size() < kBoardsInBatch; ++n) {
      bool& toLookAt = toLookAt_.at(Place(n));
      if (toLookAt && IsStored(n)) {
        batch->looks.push_back({n, known_.at(Place(n)).stamp, std::nullopt, false});
      }
      toLookAt = false;
    }
  };
  take(firstSeen_, lastSeen_);
  take(kFirstBoardNumber, kLastBoardNumber);
  if (batch->looks.empty()) return;
  reading_ = true;
  worker_.Post([batch] { Read(*batch); }, [this, batch] { Deliver(*batch); });
}

BoardSummaries::Stamp BoardSummaries::StampOf(const fs::path& path) {
  std::error_code failure;
  Stamp stamp;
  stamp.size = fs::file_size(path, failure);
  if (!failure) stamp.written = fs::last_write_time(path, failure);
  stamp.exists = !failure;
  return stamp;
}

/// Runs on the worker's thread. The stamp is taken before the file is read: a file that changes
/// meanwhile is read again.
void BoardSummaries::Read(Batch& batch) {
  for (Look& look : batch.looks) {
    const fs::path path = batch.folder / BoardFileName(look.boardNumber);
    const Stamp now = StampOf(path);
    look.changed = !now.exists || now != look.stamp;
    if (!look.changed) continue;
    look.stamp = now;
    try {
      look.summary = ReadBoardSummary(ReadWholeFile(path, kMaxBoardFileBytes), look.boardNumber);
    } catch (const Fault&) {
      look.summary = BoardSummary();  // the row says so
    }
  }
}

void BoardSummaries::Deliver(const Batch& batch) {
  reading_ = false;
  int first = kLastBoardNumber + 1;
  int last = 0;
  for (const Look& look : batch.looks) {
    if (!look.changed || batch.folder != folder_) continue;
    known_.at(Place(look.boardNumber)) = {look.stamp, look.summary};
    first = std::min(first, look.boardNumber);
    last = std::max(last, look.boardNumber);
  }
  PostNext();
  if (first <= last) emit Changed(first, last);
}

void BoardSummaries::ShowResults(const std::shared_ptr<const LinFile>& results) {
  resultFile_ = results;
  const auto found = std::make_shared<ResultsByBoard>();
  worker_.Post([results, found] { *found = ResultsOf(*results); },
               [this, results, found] {
                 if (results != resultFile_) return;
                 results_ = found;
                 emit Changed(kFirstBoardNumber, kLastBoardNumber);
               });
}

}  // namespace tricklet::ui
