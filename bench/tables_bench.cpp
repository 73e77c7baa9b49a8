// The double-dummy tables of a library of 100 boards, beside the solver library alone: its batch
// call, in its own largest batches, over the same deals in memory.
#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "analysis/dds_types.h"
#include "analysis/deal_text.h"
#include "analysis/solver_library.h"
#include "bench/measure.h"
#include "bench/quiet_host.h"
#include "bench/solver_call.h"
#include "bench/temporary_root.h"
#include "disk/file_io.h"
#include "generate/generate.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "library/tables.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = 100;
/// Each takes some ten seconds.
constexpr int kFewRepetitions = 3;

/// With five strains each.
constexpr std::size_t kLargestBatch = 40;

using CalcAllTables = std::int32_t(dds::DealBatch*, std::int32_t, std::int32_t*, dds::TableBatch*,
                                   dds::ParBatch*);

/// A library of 100 random deals, and the solver.
class Fixture : public TemporaryRoot {
 public:
  Fixture() : session(host, store), solver(LoadSolver({})) {
    session.settings.filelocation = FolderText(root);
    session.settings.library = "Full";
    session.settings.autoMakeable = false;
    session.random = RandomSource(1);
    fs::create_directories(session.LibraryPath());
    GetLibraryNames(session);
    Constraints constraints;
    constraints.numGenHands = 1;
    constraints.genBoards = {1, kBoards};
    Generate(session, constraints);
    for (int number = 1; number <= kBoards; ++number) {
      texts.push_back(ReadWholeFile(session.BoardPath(number), kMaxBoardFileBytes));
      Board board;
      ReadBoardText(texts.back(), board, TableReading::Always);
      deals.push_back(SolverDealText(board.hands));
    }
  }

  /// Puts the boards back as they were: without tables.
  void Restore() {
    UnflushedFolders unflushed;
    for (int number = 1; number <= kBoards; ++number) {
      ReplaceWholeFile(session.BoardPath(number), texts.at(static_cast<std::size_t>(number - 1)),
                       unflushed);
    }
  }
  /// How many boards have tables.
  int Tables() const {
    int count = 0;
    for (int number = 1; number <= kBoards; ++number) {
      Board board;
      ReadBoardText(ReadWholeFile(session.BoardPath(number), kMaxBoardFileBytes), board,
                    TableReading::Always);
      count += board.makeableValid ? 1 : 0;
    }
    return count;
  }

  QuietHost host;
  MemoryStore store;
  Session session;
  std::unique_ptr<Solver> solver;
  std::vector<std::string> texts;  ///< of the board files without tables
  std::vector<std::string> deals;  ///< as the solver takes them
};

Fixture& Boards() {
  static Fixture fixture;
  return fixture;
}

/// False when the library refuses.
bool SolveBatch(CalcAllTables* call, const std::vector<std::string>& deals, std::size_t first) {
  const auto batch = std::make_unique<dds::DealBatch>();
  const auto tables = std::make_unique<dds::TableBatch>();
  const auto par = std::make_unique<dds::ParBatch>();
  const std::size_t count = std::min(kLargestBatch, deals.size() - first);
  batch->count = static_cast<std::int32_t>(count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string& deal = deals.at(first + i);
    std::copy(deal.begin(), deal.end(), batch->deals.at(i).cards.begin());
  }
  std::array<std::int32_t, kStrains> skippedStrains{};
  constexpr std::int32_t kWithoutPar = -1;
  return call(batch.get(), kWithoutPar, skippedStrains.data(), tables.get(), par.get()) ==
         dds::kNoFault;
}

void SolverAloneFloor(benchmark::State& state) {
  CalcAllTables* call = SolverCall<CalcAllTables>("CalcAllTablesPBN");
  const std::vector<std::string>& deals = Boards().deals;
  if (call == nullptr) {
    state.SkipWithError("the solver library is not installed");
    return;
  }
  bool solved = true;
  Measure(
      state, [] {},
      [&] {
        for (std::size_t first = 0; first < deals.size(); first += kLargestBatch) {
          solved = SolveBatch(call, deals, first) && solved;
        }
      });
  if (!solved) state.SkipWithError("the solver library failed");
}

void AnalyseBoards(benchmark::State& state) {
  Fixture& boards = Boards();
  if (!boards.solver->Missing().empty()) {
    state.SkipWithError("the solver library is not installed");
    return;
  }
  Measure(
      state, [&boards] { boards.Restore(); },
      [&boards] { AnalyseLibrary(boards.session, *boards.solver); });
  if (boards.Tables() != kBoards) state.SkipWithError("not all boards have tables");
}

TRICKLET_BENCH_TIMES(SolverAloneFloor, kFewRepetitions);
TRICKLET_BENCH_TIMES(AnalyseBoards, kFewRepetitions);

}  // namespace
}  // namespace tricklet::bench
