#include "ui/background/worker.h"

#include <utility>

namespace tricklet::ui {

Worker::Worker(QObject* parent) : QObject(parent) {
  connect(this, &Worker::Finished, this, &Worker::Deliver, Qt::QueuedConnection);
  thread_ = std::thread([this] { Run(); });
}

Worker::~Worker() {
  Stop();
  thread_.join();
}

void Worker::Stop() {
  {
    const std::lock_guard lock(mutex_);
    stop_ = true;
    waiting_.clear();
    finished_.clear();
  }
  wake_.notify_one();
}

void Worker::Retire(std::unique_ptr<Worker> worker, QObject* keeper) {
  if (!worker || keeper == nullptr) return;
  Worker* kept = worker.release();
  kept->setParent(keeper);
  connect(kept, &Worker::Ended, kept, &QObject::deleteLater, Qt::QueuedConnection);
  kept->Stop();
}

void Worker::Post(std::function<void()> work, std::function<void()> done) {
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back({std::move(work), std::move(done)});
    if (waiting_.size() > kMostWaiting) waiting_.pop_front();
  }
  wake_.notify_one();
}

void Worker::Run() {
  std::unique_lock lock(mutex_);
  for (;;) {
    wake_.wait(lock, [this] { return stop_ || !waiting_.empty(); });
    if (stop_) break;
    Job job = std::move(waiting_.back());
    waiting_.pop_back();
    lock.unlock();
    job.work();
    lock.lock();
    if (stop_) break;
    finished_.push_back(std::move(job.done));
    emit Finished();
  }
  emit Ended();
}

void Worker::Deliver() {
  for (;;) {
    std::function<void()> done;
    {
      const std::lock_guard lock(mutex_);
      if (finished_.empty()) return;
      done = std::move(finished_.front());
      finished_.pop_front();
    }
    done();
  }
}

}  // namespace tricklet::ui
