// Work beside the window's own thread.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include <QObject>

namespace tricklet::ui {

/// One thread that does one job after another, the newest first: what the person looks at now goes
/// before what was looked at earlier.
class Worker : public QObject {
  Q_OBJECT

 public:
  /// The most jobs that wait: beyond that, the oldest are dropped.
  static constexpr std::size_t kMostWaiting = 256;

  explicit Worker(QObject* parent = nullptr);
  /// Waits for the job under way; the jobs that wait are dropped, and nothing is delivered.
  ~Worker() override;

  /// Gives up `worker` without waiting: the jobs that wait are dropped, nothing is delivered any
  /// more, and `keeper` owns it until the job under way has ended. What that job uses outlives
  /// `keeper`. Without a keeper this waits.
  static void Retire(std::unique_ptr<Worker> worker, QObject* keeper);

  /// `work` runs on the worker's thread, then `done` on the window's.
  void Post(std::function<void()> work, std::function<void()> done);

 signals:
  /// A job has been done (sent from the worker's thread).
  void Finished();
  /// The last job of a worker that was given up has been done (from the worker's thread).
  void Ended();

 private:
  struct Job {
    std::function<void()> work;
    std::function<void()> done;
  };

  void Run();
  void Deliver();
  void Stop();

  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Job> waiting_;                     // the newest at the back
  std::deque<std::function<void()>> finished_;  // in the order of their work
  bool stop_ = false;
  std::thread thread_;
};

}  // namespace tricklet::ui
