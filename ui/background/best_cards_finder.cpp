#include "ui/background/best_cards_finder.h"

#include <utility>

#include "ui/background/worker.h"

namespace tricklet::ui {

BestCardsFinder::BestCardsFinder(Session& session, const CardPlay& play, QObject* parent)
    : QObject(parent),
      session_(session),
      play_(play),
      wanted_(std::make_shared<std::atomic<int>>(0)) {}

BestCardsFinder::~BestCardsFinder() = default;

void BestCardsFinder::Look() {
  const bool on = session_.settings.showBestCards && session_.getSolver && play_.PlayMode();
  auto position = on ? PositionOf(play_.Now(), session_.board.trumps) : std::nullopt;
  if (position == position_) return;
  position_ = std::move(position);
  tricks_.clear();
  ++*wanted_;
  const PlayState& now = play_.Now();
  if (position_ && now.onPlay) Post(*position_, now.tricksWon[SideOf(*now.onPlay)]);
}

void BestCardsFinder::Post(const SolverPosition& position, int tricksWon) {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto found = std::make_shared<std::vector<CardScore>>();
  const int question = *wanted_;
  worker_->Post(
      [found, question, tricksWon, wanted = wanted_, position, solver = session_.getSolver] {
        if (*wanted == question) *found = BestCards(solver(), position, tricksWon);
      },
      [this, found, question] {
        if (*wanted_ != question) return;
        tricks_ = std::move(*found);
        emit Changed();
      });
}

}  // namespace tricklet::ui
