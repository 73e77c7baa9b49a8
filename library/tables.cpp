#include "library/tables.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <future>
#include <utility>
#include <vector>

#include "analysis/get_dds.h"
#include "core/bounded_list.h"
#include "core/fault.h"
#include "core/statistics.h"
#include "core/text.h"
#include "disk/file_io.h"
#include "disk/presence.h"
#include "library/board_file.h"
#include "library/board_on_disk.h"
#include "library/board_store.h"
#include "library/library_scan.h"
#include "library/library_write.h"
#include "library/unsaved_changes.h"

namespace tricklet {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

/// Deals on their way to the solver.
struct Batch {
  std::vector<int> numbers;
  std::vector<HandTable> deals;
};

/// What comes back.
struct SolvedBatch {
  std::vector<MakeableTable> tables;
  std::string failure;
};

/// How far a run has got.
struct Progress {
  int done = 0;
  int total = 0;
  Clock::duration taken{};  // for the boards done
  Clock::duration since{};
};

/// "Analysing board 23, 40 s left".
std::string ProgressText(int number, const Progress& progress) {
  using Seconds = std::chrono::duration<double>;
  std::string text = "Analysing board " + std::to_string(number);
  if (progress.done == 0) return text;
  const double each = Seconds(progress.taken).count() / progress.done;
  const double rest = each * (progress.total - progress.done) - Seconds(progress.since).count();
  const long left = std::lround(std::max(rest, 1.0));
  return text + ", " +
         (left < 100 ? std::to_string(left) + " s" : std::to_string(left / 60) + " min") + " left";
}

/// Which boards were left out because their files are read-only; `files` is not empty.
std::string LeftOutText(const std::vector<fs::path>& files) {
  if (files.size() == 1) return ReadOnlyText(files.front());
  std::vector<int> numbers;
  numbers.reserve(files.size());
  for (const fs::path& file : files) {
    numbers.push_back(BoardNumberOfFile(PathText(file.filename())));
  }
  return "The files of boards " + BoundedList(numbers) +
         " are read only so the hands cannot be saved";
}

/// Puts the table into the file, if the deal in it is still this one and it is not marked
/// read-only.
bool PutTable(Session& session, const fs::path& path, const HandTable& hands,
              const MakeableTable& table, UnflushedFolders& unflushed) {
  Board board;
  const SeenFile before{path, ReadWholeFile(path, kMaxBoardFileBytes)};
  if (!ReadBoardText(*before.bytes, board, TableReading::Always) || !(board.hands == hands))
    return false;
  if (IsReadOnly(path)) return false;
  board.makeable = table;
  board.makeableValid = true;
  const std::string text = WriteBoardText(board);
  ReplaceWholeFile(path, text, unflushed);
  TakeAsSeen(session, before, text);
  return true;
}

/// One run over a range of boards.
class AnalysisRun {
 public:
  AnalysisRun(Session& session, Solver& solver, LibraryWrite& write)
      : session_(session), solver_(solver), write_(write) {}

  AnalysisOutcome Run(int first, int last, bool again) {
    FindWork(first, last, again);
    const WorkScope work(session_.host);
    const BatchScope batchScope(session_);
    Batch current = NextBatch();
    while (!current.numbers.empty() && !outcome_.cancelled && outcome_.failure.empty()) {
      auto answer = std::async(std::launch::async, [this, &current] { return Solve(current); });
      StorePending();
      Batch following = NextBatch();
      Wait(answer, current.numbers.front());
      Keep(answer.get(), std::move(current));
      current = std::move(following);
    }
    StorePending();
    return outcome_;
  }

 private:
  void FindWork(int first, int last, bool again) {
    CountHands(session_);
    for (int number = first; number <= last; ++number) {
      if (!session_.library.boardPresent.at(static_cast<std::size_t>(number))) continue;
      if (Wanted(number, again)) numbers_.push_back(number);
    }
  }

  /// Reads the board and keeps its deal, if it needs a table and can have one.
  bool Wanted(int number, bool again) {
    Board board;
    try {
      const bool readable =
          ReadBoardText(ReadWholeFile(session_.BoardPath(number), kMaxBoardFileBytes), board,
                        TableReading::Always);
      if (!readable || !GetStats(board.hands).allHandsComplete) {
        ++outcome_.incomplete;
        return false;
      }
    } catch (const Fault& fault) {
      ++outcome_.incomplete;
      if (outcome_.unreadable++ == 0) outcome_.unreadableWhy = fault.Description();
      return false;
    }
    if (board.makeableValid && !again) return false;
    if (IsReadOnly(session_.BoardPath(number))) {
      outcome_.readOnly.push_back(session_.BoardPath(number));
      return false;
    }
    deals_.push_back(board.hands);
    return true;
  }

  /// The first is small, so that the time left is soon known.
  Batch NextBatch() {
    constexpr std::size_t kFirstBatch = 4;
    const std::size_t size = next_ == 0 ? kFirstBatch : Solver::kBatch;
    Batch batch;
    for (; next_ < numbers_.size() && batch.numbers.size() < size; ++next_) {
      batch.numbers.push_back(numbers_[next_]);
      batch.deals.push_back(deals_[next_]);
    }
    return batch;
  }

  SolvedBatch Solve(const Batch& batch) {
    SolvedBatch answer;
    answer.tables = SolveDeals(solver_, batch.deals, answer.failure);
    return answer;
  }

  /// Lets pending events run until the batch is solved; the solver cannot be stopped in a batch.
  void Wait(std::future<SolvedBatch>& answer, int number) {
    constexpr auto kEvery = std::chrono::milliseconds(20);
    const auto total = static_cast<int>(numbers_.size());
    do {
      const Progress progress{solved_, total, solvedAt_ - start_, Clock::now() - solvedAt_};
      Step(ProgressText(number, progress));
    } while (answer.wait_for(kEvery) != std::future_status::ready);
  }

  void Step(const std::string& text) {
    steppedAt_ = Clock::now();
    const auto total = static_cast<int>(numbers_.size());
    if (!session_.host.Step(text, solved_, total)) outcome_.cancelled = true;
  }

  /// A disk can take longer over the tables of a batch than a window may be without an answer. What
  /// has been solved is stored, also when the run is cancelled meanwhile.
  void StepWhileStoring(int number) {
    constexpr auto kLongest = std::chrono::milliseconds(20);
    if (Clock::now() - steppedAt_ < kLongest) return;
    Step("Saving the table of board " + std::to_string(number));
  }

  void Keep(SolvedBatch answer, Batch batch) {
    if (outcome_.failure.empty()) outcome_.failure = answer.failure;
    solved_ += static_cast<int>(answer.tables.size());
    solvedAt_ = Clock::now();
    pending_ = std::move(batch);
    pendingTables_ = std::move(answer.tables);
  }

  void StorePending() {
    try {
      StoreTables();
      write_.Finish();
    } catch (const Fault& fault) {
      outcome_.failure = fault.Description();
    }
    pendingTables_.clear();
  }

  void StoreTables() {
    for (std::size_t i = 0; i < pendingTables_.size(); ++i) {
      const int number = pending_.numbers[i];
      StepWhileStoring(number);
      if (!PutTable(session_, session_.BoardPath(number), pending_.deals[i], pendingTables_[i],
                    write_.Unflushed())) {
        continue;
      }
      ++outcome_.computed;
      Board& board = session_.board;
      if (board.boardNumber == number && board.hands == pending_.deals[i]) {
        board.makeable = pendingTables_[i];
        board.makeableValid = true;
      }
    }
  }

  Session& session_;
  Solver& solver_;
  LibraryWrite& write_;
  AnalysisOutcome outcome_;
  std::vector<int> numbers_;      // of the boards to be solved
  std::vector<HandTable> deals_;  // theirs
  std::size_t next_ = 0;
  int solved_ = 0;
  Batch pending_;  // solved, not yet stored
  std::vector<MakeableTable> pendingTables_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point solvedAt_ = start_;
  Clock::time_point steppedAt_ = start_;
};

}  // namespace

bool StoreTable(Session& session, const fs::path& path, const HandTable& hands,
                const MakeableTable& table) {
  std::string holder;
  const auto lock = WriteLock::Take(path.parent_path(), std::chrono::milliseconds(0), holder);
  if (!lock) return false;
  try {
    UnflushedFolders unflushed;
    const bool stored = PutTable(session, path, hands, table, unflushed);
    unflushed.Flush();
    return stored;
  } catch (const Fault&) {
    return false;
  }
}

bool RequireSolver(const Session& session) {
  if (!session.getSolver) session.host.TellError("There is no double-dummy solver");
  return session.getSolver != nullptr;
}

AnalysisOutcome AnalyseBoards(Session& session, Solver& solver, int first, int last, bool again) {
  AnalysisOutcome outcome;
  outcome.failure = solver.Missing();
  if (!outcome.failure.empty()) return outcome;
  auto write = LibraryWrite::Begin(session, outcome.failure);
  return write ? AnalysisRun(session, solver, *write).Run(first, last, again) : outcome;
}

bool Faultless(const AnalysisOutcome& outcome) {
  return outcome.failure.empty() && outcome.readOnly.empty() && outcome.unreadable == 0;
}

std::string AnalysisText(const AnalysisOutcome& outcome) {
  if (!outcome.failure.empty() && outcome.computed == 0) return outcome.failure;
  std::string text = std::to_string(outcome.computed) +
                     (outcome.computed == 1 ? " table has" : " tables have") + " been computed";
  if (outcome.incomplete > 0) {
    text += "\n" + std::to_string(outcome.incomplete) +
            (outcome.incomplete == 1 ? " hand is" : " hands are") + " incomplete";
  }
  if (outcome.unreadable > 0) {
    text += "\n" + std::to_string(outcome.unreadable) +
            " of them cannot be read: " + outcome.unreadableWhy;
  }
  if (!outcome.readOnly.empty()) text += "\n" + LeftOutText(outcome.readOnly);
  if (outcome.cancelled) text += "\nAnalysis cancelled";
  if (!outcome.failure.empty()) text += "\n" + outcome.failure;
  return text;
}

void AnalyseLibrary(Session& session, Solver& solver, bool again) {
  if (!SettleChanges(session)) return;
  const AnalysisOutcome outcome =
      AnalyseBoards(session, solver, kFirstBoardNumber, kLastBoardNumber, again);
  session.host.Tell({.text = AnalysisText(outcome),
                     .kind = Faultless(outcome) ? MessageKind::Result : MessageKind::Error});
}

}  // namespace tricklet
