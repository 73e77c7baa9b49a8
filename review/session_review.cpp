#include "review/session_review.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <future>
#include <thread>
#include <utility>
#include <vector>

#include "formats/results/seated_pair.h"
#include "review/play_review.h"
#include "review/report_source.h"
#include "review/review_cache.h"
#include "review/table_verdict.h"

namespace tricklet {
namespace {

using Clock = std::chrono::steady_clock;

/// A play on its way to the solver.
struct PlayAtTable {
  int boardNumber = 0;
  std::size_t row = 0;
  const RecordedPlay* record = nullptr;
  SolverPlay play;
};

/// Leads on their way to the solver.
struct LeadsAtBoard {
  int boardNumber = 0;
  const HandTable* hands = nullptr;
  LeadKey key;
};

/// So many that no core waits long for the last of a batch, and that a batch takes about a second.
std::size_t BatchSize() {
  constexpr std::size_t kPerCore = 32;
  constexpr std::size_t kLeast = 32;
  const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
  return std::clamp(kPerCore * cores, kLeast, static_cast<std::size_t>(Solver::kPlayBatch));
}

SolverPosition ToSolve(const LeadsAtBoard& wanted) {
  SolverPosition position;
  position.trumps = wanted.key.second;
  position.leader = SeatAfter(wanted.key.first);
  position.cardsLeft = *wanted.hands;
  return position;
}

/// Declarer's tricks after each lead; empty where the solver could not tell.
LeadTricks ToLeads(const std::vector<CardScore>& scores) {
  LeadTricks leads;
  leads.reserve(scores.size());
  for (const CardScore& each : scores) leads.emplace_back(each.card, kCardsInHand - each.tricks);
  std::sort(leads.begin(), leads.end(),
            [](const auto& a, const auto& b) { return a.first.Index() < b.first.Index(); });
  return leads;
}

/// One run over a session.
class ReviewRun {
 public:
  ReviewRun(Session& session, Solver& solver, const ReportSource& source,
            const ReviewProgress& shown)
      : session_(session),
        solver_(solver),
        source_(source),
        shown_(shown),
        cache_(LoadReviewCache(session)) {}

  SessionReview Run() {
    FindPlays();
    FindLeads();
    Show();
    if (!plays_.empty() || !leads_.empty()) {
      const WorkScope work(session_.host);
      const BatchScope batch(session_);
      ReviewPlays();
      ReviewLeads();
    }
    StoreReviewCache(session_, cache_);
    return std::move(review_);
  }

 private:
  bool GoesOn() const { return !review_.cancelled && review_.failure.empty(); }

  void Show() const {
    if (shown_) shown_(review_.answers);
  }

  /// What is known is taken at once; the rest is to be solved.
  void FindPlays() {
    for (const Traveller& traveller : source_.travellers) {
      for (std::size_t row = 0; row < traveller.rows.size(); ++row) {
        const TravellerRow& table = traveller.rows[row];
        if (!HasTable(table) || !WhyNoReview(table.record).empty()) continue;
        PlayAtTable play{traveller.boardNumber, row, &table.record, PlayToSolve(table.record)};
        if (const auto tricks = cache_.Find(play.play)) {
          TakeReview(play, *tricks);
        } else {
          plays_.push_back(std::move(play));
        }
      }
    }
  }

  /// Only a contract that does not make against the best defence has leads that beat it; one that
  /// fails by more is beaten by any.
  void FindLeads() {
    for (const Traveller& traveller : source_.travellers) {
      const auto deal = source_.boards.find(traveller.boardNumber);
      if (deal == source_.boards.end() || !deal->second.makeableValid) continue;
      for (const TravellerRow& row : traveller.rows) {
        const auto key = BeatableKey(row, deal->second);
        if (key) FindLeadsOf(deal->second, *key);
      }
    }
  }

  static std::optional<LeadKey> BeatableKey(const TravellerRow& row, const Board& deal) {
    const auto played = PlayedContract(row.contract, row.declarer, deal.boardNumber);
    if (!row.score || !played || played->contractLevel == 0 || !IsSameDeal(row, deal)) {
      return std::nullopt;
    }
    const int tricks = deal.makeable[ToTableSeat(played->declarer)][ToTableStrain(played->trumps)];
    const int undertricks = played->contractLevel + kBook - tricks;
    if (undertricks < 1 || undertricks > kMostUndertricks) return std::nullopt;
    return LeadKey(played->declarer, played->trumps);
  }

  void FindLeadsOf(const Board& deal, LeadKey key) {
    auto& known = review_.answers.leads[deal.boardNumber];
    if (known.contains(key)) return;
    if (auto leads = cache_.FindLeads(deal.hands, key)) {
      known[key] = std::move(*leads);
      return;
    }
    known[key] = {};  // to be found once only
    leads_.push_back({deal.boardNumber, &deal.hands, key});
  }

  void ReviewPlays() {
    std::vector<PlayTricks> tricks;
    std::size_t taken = 0;
    while (done_ < plays_.size() && GoesOn()) {
      const std::size_t count = std::min(BatchSize(), plays_.size() - done_);
      std::vector<PlayTricks> answer(count);
      auto failure = std::async(std::launch::async, [this, count, &answer] {
        std::vector<SolverPlay> batch;
        batch.reserve(count);
        for (std::size_t i = 0; i < count; ++i) batch.push_back(plays_[done_ + i].play);
        return solver_.SolvePlays(batch, answer);
      });
      taken = TakeReviews(taken, tricks);
      Wait(failure, "Reviewing plays");
      review_.failure = failure.get();
      if (!review_.failure.empty()) return;
      tricks = std::move(answer);
      done_ += count;
      doneAt_ = Clock::now();
    }
    TakeReviews(taken, tricks);
  }

  /// Of the batch before, while the next is on the solver. Returns how many plays are taken then.
  std::size_t TakeReviews(std::size_t first, const std::vector<PlayTricks>& tricks) {
    for (std::size_t i = 0; i < tricks.size(); ++i) {
      cache_.Add(plays_[first + i].play, tricks[i]);
      TakeReview(plays_[first + i], tricks[i]);
    }
    if (!tricks.empty()) Show();
    return first + tricks.size();
  }

  void TakeReview(const PlayAtTable& play, const PlayTricks& tricks) {
    review_.answers.reviews.emplace(std::pair(play.boardNumber, play.row),
                                    MakeReview(*play.record, tricks));
  }

  void ReviewLeads() {
    while (leadsDone_ < leads_.size() && GoesOn()) {
      const std::size_t count = std::min(BatchSize(), leads_.size() - leadsDone_);
      auto answer = std::async(std::launch::async, [this, count] {
        std::vector<SolverPosition> batch;
        batch.reserve(count);
        for (std::size_t i = 0; i < count; ++i) batch.push_back(ToSolve(leads_[leadsDone_ + i]));
        std::vector<std::vector<CardScore>> scores(count);
        solver_.SolveCardsOfAll(batch, CardsWanted::All, scores);
        return scores;
      });
      Wait(answer, "Looking for leads");
      TakeLeads(answer.get());
    }
  }

  void TakeLeads(const std::vector<std::vector<CardScore>>& scores) {
    for (const auto& each : scores) {
      const LeadsAtBoard& wanted = leads_[leadsDone_++];
      LeadTricks leads = ToLeads(each);
      if (leads.size() == kCardsInHand) cache_.AddLeads(*wanted.hands, wanted.key, leads);
      review_.answers.leads[wanted.boardNumber][wanted.key] = std::move(leads);
    }
    Show();
  }

  /// Lets pending events run until it is ready; the solver cannot be stopped in a batch.
  template <class Answer>
  void Wait(std::future<Answer>& answer, const std::string& text) {
    constexpr auto kEvery = std::chrono::milliseconds(20);
    const auto done = static_cast<int>(done_ + leadsDone_);
    const auto total = static_cast<int>(plays_.size() + leads_.size());
    do {
      if (!session_.host.Step(text + TimeLeft(), done, total)) review_.cancelled = true;
    } while (answer.wait_for(kEvery) != std::future_status::ready);
  }

  /// ", 40 s left"; empty before the first batch is done, and for the leads, which are quick.
  std::string TimeLeft() const {
    using Seconds = std::chrono::duration<double>;
    if (done_ == 0 || done_ == plays_.size()) return {};
    const double each = Seconds(doneAt_ - start_).count() / static_cast<double>(done_);
    const double rest =
        each * static_cast<double>(plays_.size() - done_) - Seconds(Clock::now() - doneAt_).count();
    const long left = std::lround(std::max(rest, 1.0));
    constexpr long kMinute = 60;
    constexpr long kLongest = 100;
    return ", " +
           (left < kLongest ? std::to_string(left) + " s"
                            : std::to_string(left / kMinute) + " min") +
           " left";
  }

  Session& session_;
  Solver& solver_;
  const ReportSource& source_;
  const ReviewProgress& shown_;
  ReviewCache cache_;
  SessionReview review_;
  std::vector<PlayAtTable> plays_;   // to be solved
  std::vector<LeadsAtBoard> leads_;  // likewise
  std::size_t done_ = 0;
  std::size_t leadsDone_ = 0;
  Clock::time_point start_ = Clock::now();
  Clock::time_point doneAt_ = start_;
};

}  // namespace

SessionReview ReviewSession(Session& session, Solver& solver, const ReportSource& source,
                            const ReviewProgress& shown) {
  return ReviewRun(session, solver, source, shown).Run();
}

ReportOutcome ReportSession(Session& session, Solver& solver,
                            const std::function<void(const SessionReport&)>& shown) {
  ReportOutcome outcome;
  outcome.failure = solver.Missing();
  if (!outcome.failure.empty()) return outcome;
  const auto source = GatherReport(session, true);
  if (!source) return outcome;
  const SessionReview review =
      ReviewSession(session, solver, *source, [&](const ReportAnswers& answers) {
        if (shown) shown(MakeSessionReport(*source, answers));
      });
  outcome.report = MakeSessionReport(*source, review.answers);
  outcome.cancelled = review.cancelled;
  outcome.failure = review.failure;
  return outcome;
}

}  // namespace tricklet
