#include "ui/finding/board_search.h"

#include <atomic>
#include <mutex>
#include <utility>

#include <QTimer>

#include "core/text.h"
#include "ui/background/worker.h"
#include "ui/style/qt_text.h"

namespace tricklet::ui {
namespace {

constexpr int kBetweenBatches = 80;  // milliseconds

}  // namespace

/// What the search and the window share.
struct BoardSearch::Run {
  std::atomic<bool> stop = false;
  std::mutex mutex;  // of all below
  std::vector<FoundBoard> found;
  std::vector<std::string> broken;
  FindProgress progress;
};

BoardSearch::BoardSearch(QObject* parent)
    : QObject(parent), often_(new QTimer(this)), worker_(std::make_unique<Worker>()) {
  setObjectName(QStringLiteral("boardSearch"));
  often_->setInterval(kBetweenBatches);
  connect(often_, &QTimer::timeout, this, &BoardSearch::Give);
}

BoardSearch::~BoardSearch() {
  Stop();
}

void BoardSearch::Stop() {
  if (run_ != nullptr) run_->stop = true;
  run_.reset();
  often_->stop();
}

void BoardSearch::Begin(FindScope scope, FindQuery query) {
  Stop();
  run_ = std::make_shared<Run>();
  const auto look = [run = run_, scope = std::move(scope), query = std::move(query)] {
    FindSink sink;
    sink.found = [&](FoundBoard board) {
      const std::lock_guard lock(run->mutex);
      run->found.push_back(std::move(board));
    };
    sink.broken = [&](const std::filesystem::path& path, const std::string& why) {
      const std::lock_guard lock(run->mutex);
      run->broken.push_back(ShownPath(path) + ": " + why);
    };
    sink.goOn = [&](const FindProgress& progress) {
      const std::lock_guard lock(run->mutex);
      run->progress = progress;
      return !run->stop;
    };
    if (run->stop) return;
    const FindProgress end = FindBoards(scope, query, sink);
    const std::lock_guard lock(run->mutex);
    run->progress = end;
  };
  worker_->Post(look, [this, run = run_] {
    if (run != run_) return;
    Give();
    Stop();
    emit Ended();
  });
  often_->start();
}

void BoardSearch::Give() {
  std::vector<FoundBoard> found;
  std::vector<std::string> broken;
  FindProgress progress;
  {
    const std::lock_guard lock(run_->mutex);
    found.swap(run_->found);
    broken.swap(run_->broken);
    progress = run_->progress;
  }
  for (const std::string& what : broken) emit Broken(ToQt(what));
  emit Went(found, progress);
}

}  // namespace tricklet::ui
