#include "ui/background/program_player.h"

#include "ui/background/later.h"
#include "ui/background/worker.h"

namespace tricklet::ui {

ProgramPlayer::ProgramPlayer(Session& session, QObject* parent)
    : QObject(parent), session_(session), wanted_(std::make_shared<std::atomic<int>>(0)) {}

ProgramPlayer::~ProgramPlayer() {
  ++*wanted_;  // so that a long line is not waited for
}

void ProgramPlayer::Think(const std::optional<ProgramTurn>& turn) {
  if (turn && turn_ && turn->SameAs(*turn_)) {
    if (cards_) Give();
    return;
  }
  ++*wanted_;
  turn_ = turn;
  cards_.reset();
  if (turn_) Post(*turn_);
}

void ProgramPlayer::Post(const ProgramTurn& turn) {
  if (!worker_) worker_ = std::make_unique<Worker>();
  const auto found = std::make_shared<std::vector<Card>>();
  const int number = *wanted_;
  const auto goOn = [number, wanted = wanted_] { return *wanted == number; };
  worker_->Post(
      [found, goOn, turn, solver = session_.getSolver] {
        if (goOn() && solver) *found = CardsForTurn(solver(), turn, goOn);
      },
      [this, found, goOn] {
        if (!goOn()) return;
        cards_ = std::move(*found);
        Give();
      });
}

void ProgramPlayer::Give() {
  if (giving_) return;
  giving_ = true;
  Later(this, [this] {
    giving_ = false;
    if (!turn_ || !cards_) return;
    const ProgramTurn turn = *turn_;  // `Found` may bring another
    const std::vector<Card> cards = *cards_;
    emit Found(turn, cards);
  });
}

}  // namespace tricklet::ui
