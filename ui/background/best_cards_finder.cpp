#include "ui/background/best_cards_finder.h"

#include <algorithm>
#include <utility>

#include "ui/background/worker.h"

namespace tricklet::ui {
namespace {

/// Four plays of a board.
constexpr std::size_t kRemembered = std::size_t{4} * kCardsInPack;

}  // namespace

BestCardsFinder::BestCardsFinder(Session& session, QObject* parent)
    : QObject(parent), session_(session), wanted_(std::make_shared<std::atomic<int>>(0)) {}

BestCardsFinder::~BestCardsFinder() = default;

std::optional<BestCardsFinder::Question> BestCardsFinder::QuestionOf(const PlayState& state,
                                                                     Strain trumps) {
  const auto position = PositionOf(state, trumps);
  if (!position || !state.onPlay) return std::nullopt;
  return Question{*position, state.tricksWon[SideOf(*state.onPlay)]};
}

const std::vector<CardScore>* BestCardsFinder::Remembered(const Question& question) const {
  const auto answer = std::ranges::find(answers_, question, &Answer::question);
  return answer == answers_.end() ? nullptr : &answer->tricks;
}

void BestCardsFinder::Find(const CardPlay& play, const Board& board) {
  std::optional<Question> question;
  if (session_.settings.showBestCards && session_.getSolver && play.PlayMode()) {
    question = QuestionOf(play.Now(), board.trumps);
  }
  if (question == question_) return;
  question_ = question;
  tricks_.clear();
  ++*wanted_;
  if (!question_) return;
  if (const auto* known = Remembered(*question_)) {
    tricks_ = *known;
  } else {
    Post(*question_);
  }
}

/// A question that is no longer the last one is not asked, but when the solver is already at it,
/// its answer is taken.
void BestCardsFinder::Post(const Question& question) {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto found = std::make_shared<std::vector<CardScore>>();
  const int number = *wanted_;
  worker_->Post(
      [found, question, number, wanted = wanted_, solver = session_.getSolver] {
        if (*wanted == number) *found = BestCards(solver(), question.position, question.tricksWon);
      },
      [this, found, question] { Take(question, std::move(*found)); });
}

void BestCardsFinder::Take(const Question& question, std::vector<CardScore> tricks) {
  if (tricks.empty()) return;
  if (question == question_) tricks_ = tricks;
  if (Remembered(question) == nullptr) {
    if (answers_.size() == kRemembered) answers_.pop_front();
    answers_.push_back({question, std::move(tricks)});
  }
  emit Changed();
}

}  // namespace tricklet::ui
