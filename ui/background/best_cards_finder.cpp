#include "ui/background/best_cards_finder.h"

#include <utility>

#include "ui/background/worker.h"

namespace tricklet::ui {

BestCardsFinder::BestCardsFinder(Session& session, QObject* parent)
    : QObject(parent), session_(session), wanted_(std::make_shared<std::atomic<int>>(0)) {}

BestCardsFinder::~BestCardsFinder() = default;

void BestCardsFinder::Find(const CardPlay& play, const Board& board) {
  std::optional<Question> question;
  if (session_.settings.showBestCards && session_.getSolver && play.PlayMode()) {
    const PlayState& now = play.Now();
    const auto position = PositionOf(now, board.trumps);
    if (position && now.onPlay) {
      question = Question{*position, now.tricksWon[SideOf(*now.onPlay)]};
    }
  }
  if (question == question_) return;
  question_ = question;
  tricks_.clear();
  ++*wanted_;
  if (question_) Post(*question_);
}

void BestCardsFinder::Post(const Question& question) {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto found = std::make_shared<std::vector<CardScore>>();
  const int number = *wanted_;
  worker_->Post(
      [found, question, number, wanted = wanted_, solver = session_.getSolver] {
        if (*wanted == number) *found = BestCards(solver(), question.position, question.tricksWon);
      },
      [this, found, number] {
        if (*wanted_ != number) return;
        tricks_ = std::move(*found);
        emit Changed();
      });
}

}  // namespace tricklet::ui
