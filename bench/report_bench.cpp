// The report of an evening of 450 plays in a library, beside the solver library alone: its call for
// a batch of plays, in its own largest batches, over the same plays in memory.
#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "analysis/dds_types.h"
#include "analysis/solver_library.h"
#include "bench/bare_play.h"
#include "bench/club_session.h"
#include "bench/measure.h"
#include "bench/quiet_host.h"
#include "bench/solver_call.h"
#include "bench/temporary_root.h"
#include "disk/file_io.h"
#include "library/board_file.h"
#include "library/library_choice.h"
#include "library/tables.h"
#include "review/play_review.h"
#include "review/session_review.h"

namespace tricklet::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kBoards = 30;
/// One auction of six passes the board out.
constexpr int kTables = 18;
/// Each takes up to half a minute.
constexpr int kFewRepetitions = 3;

using AnalyseAllPlays = std::int32_t(dds::PlayDeals*, dds::PlayBatch*, dds::PlayOutcomes*,
                                     std::int32_t);

/// A library with the boards, their tables and the results.
class Evening : public TemporaryRoot {
 public:
  Evening() : session(host, store), solver(LoadSolver({})) {
    session.settings.filelocation = FolderText(root);
    session.settings.library = "Evening";
    session.getSolver = [this]() -> Solver& { return *solver; };
    fs::create_directories(session.LibraryPath());
    GetLibraryNames(session);
    const ClubSession club = RandomSession(kBoards, kTables, 16);
    for (const Board& board : club.boards) {
      ReplaceWholeFile(session.BoardPath(board.boardNumber), WriteBoardText(board));
    }
    ReplaceWholeFile(LinDataPath(session), LinFileText(club.results));
    AnalyseLibrary(session, *solver);
    for (const Traveller& traveller : MakeTravellers(club.results)) {
      for (const TravellerRow& row : traveller.rows) {
        if (WhyNoReview(row.record).empty()) plays.push_back(ToBare(row.record));
      }
    }
  }

  void Forget() { fs::remove(session.LibraryPath() / ".tricklet-review"); }
  /// The plays alone, without what the report says of contracts and leads.
  std::size_t Review() {
    ReportSource source;
    source.results = LoadLinData(session);
    source.travellers = MakeTravellers(source.results);
    return ReviewSession(session, *solver, source, {}).answers.reviews.size();
  }
  /// How many plays have been reviewed.
  std::size_t Report() {
    const ReportOutcome outcome = ReportSession(session, *solver, {});
    return outcome.report ? static_cast<std::size_t>(outcome.report->reviewed) : 0;
  }

  QuietHost host;
  MemoryStore store;
  Session session;
  std::unique_ptr<Solver> solver;
  std::vector<BarePlay> plays;
};

Evening& TheEvening() {
  static Evening evening;
  return evening;
}

/// False when the library refuses.
bool SolveBatch(AnalyseAllPlays* call, const std::vector<BarePlay>& plays, std::size_t first) {
  const auto deals = std::make_unique<dds::PlayDeals>();
  const auto batch = std::make_unique<dds::PlayBatch>();
  const auto outcomes = std::make_unique<dds::PlayOutcomes>();
  const std::size_t count =
      std::min(static_cast<std::size_t>(dds::kPlaySlots), plays.size() - first);
  deals->count = batch->count = static_cast<std::int32_t>(count);
  for (std::size_t i = 0; i < count; ++i) {
    deals->deals.at(i) = plays.at(first + i).deal;
    batch->plays.at(i) = plays.at(first + i).cards;
  }
  return call(deals.get(), batch.get(), outcomes.get(), 1) == dds::kNoFault;
}

void EveningAloneFloor(benchmark::State& state) {
  AnalyseAllPlays* call = SolverCall<AnalyseAllPlays>("AnalyseAllPlaysBin");
  if (call == nullptr) {
    state.SkipWithError("the solver library has no call for batches of plays");
    return;
  }
  const std::vector<BarePlay>& plays = TheEvening().plays;
  bool solved = true;
  Measure(
      state, [] {},
      [&] {
        for (std::size_t first = 0; first < plays.size(); first += dds::kPlaySlots) {
          solved = SolveBatch(call, plays, first) && solved;
        }
      });
  if (!solved) state.SkipWithError("the solver library failed");
}

void ReviewEvening(benchmark::State& state) {
  Evening& evening = TheEvening();
  std::size_t reviewed = 0;
  Measure(
      state, [&] { evening.Forget(); }, [&] { reviewed = evening.Review(); });
  if (reviewed != evening.plays.size()) state.SkipWithError("not all plays are reviewed");
}

/// With the leads against contracts that can be beaten.
void ReportEvening(benchmark::State& state) {
  Evening& evening = TheEvening();
  std::size_t reviewed = 0;
  Measure(
      state, [&] { evening.Forget(); }, [&] { reviewed = evening.Report(); });
  if (reviewed != evening.plays.size()) state.SkipWithError("not all plays are reviewed");
}

/// A second look.
void ReportEveningAgain(benchmark::State& state) {
  Evening& evening = TheEvening();
  evening.Report();
  std::size_t reviewed = 0;
  Measure(
      state, [] {}, [&] { reviewed = evening.Report(); });
  if (reviewed != evening.plays.size()) state.SkipWithError("not all plays are reviewed");
}

TRICKLET_BENCH_TIMES(EveningAloneFloor, kFewRepetitions);
TRICKLET_BENCH_TIMES(ReviewEvening, kFewRepetitions);
TRICKLET_BENCH_TIMES(ReportEvening, kFewRepetitions);
TRICKLET_BENCH_TIMES(ReportEveningAgain, kFewRepetitions);

}  // namespace
}  // namespace tricklet::bench
