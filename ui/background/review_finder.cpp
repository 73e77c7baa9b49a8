#include "ui/background/review_finder.h"

#include <algorithm>
#include <utility>

#include "ui/background/worker.h"

namespace tricklet::ui {
namespace {

constexpr std::size_t kRememberedPlays = 64;

/// How many cards two plays of the same deal and contract have in common; nothing where these
/// differ.
std::optional<std::size_t> CommonCards(const SolverPlay& a, const SolverPlay& b) {
  if (a.trumps != b.trumps || a.declarer != b.declarer || a.hands != b.hands) return std::nullopt;
  return static_cast<std::size_t>(std::ranges::mismatch(a.cards, b.cards).in1 - a.cards.begin());
}

}  // namespace

ReviewFinder::ReviewFinder(Session& session, QObject* parent)
    : QObject(parent), session_(session), wanted_(std::make_shared<std::atomic<int>>(0)) {}

ReviewFinder::~ReviewFinder() = default;

void ReviewFinder::Forget() {
  record_.reset();
  play_ = {};
  review_.reset();
  complete_ = false;
  why_.clear();
  ++*wanted_;
}

void ReviewFinder::Find(const RecordedPlay& record) {
  if (std::string why = WhyNoReview(record); !why.empty()) {
    Forget();
    why_ = std::move(why);
    return;
  }
  SolverPlay play = PlayToSolve(record);
  const bool asked = record_ && play == play_;
  record_ = record;
  play_ = std::move(play);
  Show();
  if (asked) return;
  ++*wanted_;
  if (!complete_ && why_.empty() && session_.getSolver) Post();
}

/// What is known of the play now.
void ReviewFinder::Show() {
  review_.reset();
  complete_ = false;
  why_.clear();
  const Answer* nearest = Nearest();
  if (nearest == nullptr || !record_) return;
  if (!nearest->failure.empty()) {
    why_ = nearest->failure;
    return;
  }
  const std::size_t known = CommonCards(play_, nearest->play).value_or(0);
  PlayTricks tricks = nearest->tricks;
  tricks.resize(known + 1);
  complete_ = known == play_.cards.size();
  if (complete_) {
    review_ = MakeReview(*record_, tricks);
  } else if (known > 0) {
    RecordedPlay part{record_->board, play_.cards, std::nullopt};
    part.cards.resize(known);
    review_ = MakeReview(part, tricks);
  }
}

/// The answer that tells most of the play; one that failed tells only of its own. nullptr when
/// there is none.
const ReviewFinder::Answer* ReviewFinder::Nearest() const {
  const Answer* nearest = nullptr;
  std::size_t most = 0;
  for (const Answer& answer : answers_) {
    const auto common = CommonCards(play_, answer.play);
    if (!common || (!answer.failure.empty() && answer.play != play_)) continue;
    if (nearest != nullptr && *common < most) continue;
    nearest = &answer;
    most = *common;
  }
  return nearest;
}

/// A question that is no longer the last one is not asked, but when the solver is already at it,
/// its answer is taken.
void ReviewFinder::Post() {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto answer = std::make_shared<Answer>(Answer{play_, {}, {}});
  const int number = *wanted_;
  worker_->Post(
      [answer, number, wanted = wanted_, getSolver = session_.getSolver] {
        if (*wanted != number) return;
        Solver& solver = getSolver();
        answer->failure = solver.Missing();
        if (!answer->failure.empty()) return;
        answer->failure = solver.SolvePlays({&answer->play, 1}, {&answer->tricks, 1});
      },
      [this, answer] { Take(std::move(*answer)); });
}

void ReviewFinder::Take(Answer answer) {
  if (answer.tricks.empty() && answer.failure.empty()) return;  // was not asked any more
  if (answers_.size() == kRememberedPlays) answers_.pop_front();
  answers_.push_back(std::move(answer));
  if (!record_) return;
  Show();
  emit Changed();
}

}  // namespace tricklet::ui
