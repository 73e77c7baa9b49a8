// Ends a program that hangs, and tells what it did last.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <string>
#include <thread>

namespace tricklet::test {

class Watchdog {
 public:
  explicit Watchdog(std::chrono::milliseconds patience)
      : patience_(patience), thread_([this] { Watch(); }) {}
  ~Watchdog() {
    stop_ = true;
    thread_.join();
  }
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  /// The program has come this far: what it does next is `text`.
  void Note(std::string text) {
    const std::lock_guard lock(mutex_);
    last_.push_back(std::move(text));
    if (last_.size() > kShown) last_.pop_front();
    since_ = std::chrono::steady_clock::now();
  }
  void Print() {
    const std::lock_guard lock(mutex_);
    for (const std::string& text : last_) std::fprintf(stderr, "%s\n", text.c_str());
  }

 private:
  static constexpr std::size_t kShown = 20;

  void Watch() {
    while (!stop_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(50));
      if (Silence() < patience_) continue;
      Print();
      std::fprintf(stderr, "hangs in the last of these\n");
      std::abort();
    }
  }
  std::chrono::steady_clock::duration Silence() {
    const std::lock_guard lock(mutex_);
    return std::chrono::steady_clock::now() - since_;
  }

  std::chrono::milliseconds patience_;
  std::mutex mutex_;
  std::deque<std::string> last_;
  std::chrono::steady_clock::time_point since_ = std::chrono::steady_clock::now();
  std::atomic<bool> stop_{false};
  std::thread thread_;
};

}  // namespace tricklet::test
