#include "generate/deal_run.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <thread>

#include "conditions/dealing.h"
#include "core/text.h"

namespace tricklet {
namespace {

using Clock = std::chrono::steady_clock;

/// What came of a block of deals.
struct Block {
  std::vector<FoundDeal> found;
  std::vector<std::int64_t> triedAt;  ///< deals tried in the block up to each of them
  std::int64_t tried = 0;
  std::exception_ptr failure;
};

/// A stream of its own for each block of a run.
RandomSource RandomOfBlock(std::uint64_t seed, std::int64_t block) {
  std::uint64_t mixed = (static_cast<std::uint64_t>(block) + 1) * 0xD1B54A32D192ED03U;
  mixed ^= mixed >> 32U;
  return RandomSource(seed ^ mixed * 0x9E3779B97F4A7C15U);
}

/// How much of a run is done, 0..1: whichever of its two limits is nearer.
double ShareDone(const DealRunOutcome& now, const DealRunOptions& options) {
  const auto share = [](std::int64_t part, std::int64_t whole) {
    return whole <= 0 ? 1.0 : static_cast<double>(part) / static_cast<double>(whole);
  };
  return std::min(
      1.0, std::max(share(now.tried, options.generate), share(now.produced, options.produce)));
}

/// Blocks are dealt by threads, each from a random stream of its own, and taken in their order.
class BlockQueue {
 public:
  BlockQueue(const std::shared_ptr<const Script>& script, Solver* solver,
             const DealRunOptions& options)
      : script_(script),
        solver_(solver),
        options_(options),
        blockSize_(script->UsesSolver() ? kSolvedBlock : kBlock),
        blocks_((options.generate + blockSize_ - 1) / blockSize_),
        cores_(std::max(1U,
                        options.cores == 0 ? std::thread::hardware_concurrency() : options.cores)) {
    threads_.reserve(cores_);
    for (unsigned i = 0; i < cores_; ++i) threads_.emplace_back([this] { Work(); });
  }
  ~BlockQueue() {
    {
      const std::lock_guard lock(mutex_);
      stop_ = true;
    }
    changed_.notify_all();
    for (std::thread& thread : threads_) thread.join();
  }
  BlockQueue(const BlockQueue&) = delete;
  BlockQueue& operator=(const BlockQueue&) = delete;

  std::int64_t Blocks() const { return blocks_; }

  /// The next block when it comes in time.
  std::optional<Block> Take(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    const bool there = changed_.wait_for(lock, patience, [this] { return done_.contains(taken_); });
    if (!there) return std::nullopt;
    Block block = std::move(done_.extract(taken_).mapped());
    ++taken_;
    lock.unlock();
    changed_.notify_all();
    return block;
  }

 private:
  static constexpr std::int64_t kBlock = 4096;
  static constexpr std::int64_t kSolvedBlock = 8;  // a deal takes some hundredths of a second
  static constexpr std::int64_t kAhead = 8;        // blocks for each core that wait to be taken

  void Work() {
    Dealing dealing(script_, solver_, RandomSource(0));
    while (true) {
      std::int64_t number = 0;
      {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] {
          return stop_ || started_ == blocks_ || started_ < taken_ + kAhead * cores_;
        });
        if (stop_ || started_ == blocks_) return;
        number = started_++;
      }
      Block block = DealBlock(dealing, number);
      {
        const std::lock_guard lock(mutex_);
        done_.emplace(number, std::move(block));
      }
      changed_.notify_all();
    }
  }

  Block DealBlock(Dealing& dealing, std::int64_t number) {
    Block block;
    const std::int64_t tries = std::min(blockSize_, options_.generate - number * blockSize_);
    try {
      dealing.Restart(RandomOfBlock(options_.seed, number));
      while (dealing.Tried() < tries &&
             static_cast<std::int64_t>(block.found.size()) < options_.produce) {
        const auto hands = dealing.Next(tries - dealing.Tried());
        if (!hands) break;
        FoundDeal found{.hands = *hands, .values = {}};
        found.values.reserve(options_.expressions.size());
        for (const ExpressionId id : options_.expressions) {
          found.values.push_back(dealing.Value(id));
        }
        block.found.push_back(std::move(found));
        block.triedAt.push_back(dealing.Tried());
      }
    } catch (const std::exception&) {
      block.failure = std::current_exception();
    }
    block.tried = dealing.Tried();
    return block;
  }

  std::shared_ptr<const Script> script_;
  Solver* solver_;
  const DealRunOptions& options_;
  std::int64_t blockSize_;
  std::int64_t blocks_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<std::int64_t, Block> done_;
  std::int64_t started_ = 0;
  std::int64_t taken_ = 0;
  bool stop_ = false;
  unsigned cores_;
  std::vector<std::thread> threads_;
};

}  // namespace

std::string DealCountsText(const DealRunOutcome& now) {
  std::string text =
      GroupedText(now.tried) + " deals tried, " + GroupedText(now.produced) + " found";
  if (now.seconds <= 0) return text;
  const double rate = static_cast<double>(now.tried) / now.seconds;
  return text + ", " + GroupedText(static_cast<std::int64_t>(rate)) + " a second";
}

std::string DealProgressText(const DealRunOutcome& now, const DealRunOptions& options) {
  std::string text = DealCountsText(now);
  const double share = ShareDone(now, options);
  if (now.seconds <= 0 || share <= 0) return text;
  const double left = now.seconds * (1 - share) / share;
  return text + ", " + GroupedText(std::llround(left)) + " s left";
}

DealRunOutcome RunDeals(const std::shared_ptr<const Script>& script, Solver* solver, Host& host,
                        const DealRunOptions& options,
                        const std::function<bool(const FoundDeal&)>& found) {
  constexpr auto kStepEvery = std::chrono::milliseconds(100);
  constexpr int kWhole = 1000;
  DealRunOutcome outcome;
  if (options.produce <= 0 || options.generate <= 0) return outcome;
  const WorkScope work(host);
  const auto start = Clock::now();
  auto shown = start;
  const auto step = [&] {
    shown = Clock::now();
    outcome.seconds = std::chrono::duration<double>(shown - start).count();
    const int done = static_cast<int>(ShareDone(outcome, options) * kWhole);
    return host.Step(DealProgressText(outcome, options), done, kWhole);
  };
  const auto take = [&](const Block& block) {
    for (std::size_t i = 0; i < block.found.size(); ++i) {
      ++outcome.produced;
      outcome.stopped = !found(block.found[i]);
      if (!outcome.stopped && outcome.produced < options.produce) continue;
      outcome.tried += block.triedAt[i];
      return;
    }
    outcome.tried += block.tried;
  };
  BlockQueue queue(script, solver, options);
  for (std::int64_t taken = 0;
       taken < queue.Blocks() && !outcome.stopped && outcome.produced < options.produce;) {
    const auto block = queue.Take(kStepEvery);
    if (block) {
      ++taken;
      take(*block);
      if (block->failure) std::rethrow_exception(block->failure);
    }
    if (Clock::now() - shown < kStepEvery) continue;
    outcome.cancelled = !step();
    if (outcome.cancelled) break;
  }
  outcome.seconds = std::chrono::duration<double>(Clock::now() - start).count();
  return outcome;
}

}  // namespace tricklet
