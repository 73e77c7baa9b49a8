#include "ui/background/background_tables.h"

#include <chrono>

#include "analysis/deal_text.h"
#include "analysis/get_dds.h"
#include "core/text.h"
#include "library/board_store.h"
#include "library/tables.h"
#include "ui/background/later.h"

namespace tricklet::ui {
namespace {

constexpr std::chrono::milliseconds kBetweenDeliveries{100};

}  // namespace

/// A deal on its way to the solver and back.
struct BackgroundTables::Job {
  std::filesystem::path path;  // of the board's file
  int boardNumber = 0;
  HandTable hands;
  bool asked = false;  // by the person, who is told of a failure
  MakeableTable table;
  std::string failure;

  /// Tells one deal in one file from all others.
  std::string Key() const { return PathText(path) + " " + SolverDealText(hands); }
};

BackgroundTables::BackgroundTables(Session& session, QObject* parent)
    : QObject(parent), session_(session) {}

void BackgroundTables::ComputeMissing() {
  if (!session_.batchRunning && WantsTable(session_, session_.board)) Post(false);
}

void BackgroundTables::ComputeAsked() {
  if (const std::string warning = DealWarning(session_.board.hands); !warning.empty()) {
    session_.host.TellError(warning);
  } else if (RequireSolver(session_)) {
    Post(true);
  }
}

void BackgroundTables::Post(bool asked) {
  const auto job = std::make_shared<Job>();
  job->boardNumber = session_.board.boardNumber;
  job->path = session_.BoardPath(job->boardNumber);
  job->hands = session_.board.hands;
  job->asked = asked;
  // A deal that could not be solved stays in the list, so that it is not tried again and again.
  if (!underWay_.insert(job->Key()).second && !asked) return;
  worker_.Post(
      [job, solver = session_.getSolver] {
        const auto tables = SolveDeals(solver(), {job->hands}, job->failure);
        if (!tables.empty()) job->table = tables.front();
      },
      [this, job] { Deliver(job); });
}

bool BackgroundTables::IsCurrent(const Job& job) const {
  const Board& board = session_.board;
  return board.boardNumber == job.boardNumber && board.hands == job.hands &&
         session_.BoardPath(board.boardNumber) == job.path;
}

void BackgroundTables::TellFailure(const Job& job) {
  if (job.asked) {
    session_.host.TellError(job.failure);
  } else {
    emit Said(tr("No double-dummy table of board %1: %2")
                  .arg(job.boardNumber)
                  .arg(QString::fromStdString(job.failure)));
  }
}

/// Keeps off the board files during a run, which may be writing the same one. A missing table is
/// then dropped, as it is asked for again after the run; one that the person asked for waits.
void BackgroundTables::Deliver(const std::shared_ptr<const Job>& job) {
  if (!session_.batchRunning) {
    Take(*job);
  } else if (job->asked) {
    Later(
        this, [this, job] { Deliver(job); }, kBetweenDeliveries);
  } else {
    underWay_.erase(job->Key());
  }
}

void BackgroundTables::Take(const Job& job) {
  if (!job.failure.empty()) {
    TellFailure(job);  // its key stays among those that cannot be solved
    return;
  }
  underWay_.erase(job.Key());
  if (job.asked) {
    TakeAsked(job);
  } else {
    StoreTable(session_, job.path, job.hands, job.table);
    if (IsCurrent(job)) Show(job.table);
  }
}

void BackgroundTables::TakeAsked(const Job& job) {
  if (!IsCurrent(job)) {
    emit Said(tr("The double-dummy table of board %1 was not kept: the board has been left")
                  .arg(job.boardNumber));
    return;
  }
  session_.board.handChanged = true;
  Show(job.table);
}

void BackgroundTables::Show(const MakeableTable& table) {
  session_.board.makeable = table;
  session_.board.makeableValid = true;
  emit Changed();
}

}  // namespace tricklet::ui
